#pragma once

#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

// A fresh directory for one test's files, removed with everything in it. The name is
// made unique by mkdtemp: a death test's child ends without unwinding and leaves its
// directory behind, and a reused name would meet those stale files.
class Scratch_Dir {
public:
    Scratch_Dir() {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "mosswick_test_XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr)
            throw std::filesystem::filesystem_error("mkdtemp", pattern,
                                                    std::error_code(errno, std::generic_category()));
        dir = pattern;
    }
    ~Scratch_Dir() {
        remove(dir);
    }
    Scratch_Dir(const Scratch_Dir&) = delete;
    Scratch_Dir& operator=(const Scratch_Dir&) = delete;

    std::string file(const std::string& name) const { return (dir / name).string(); }
    const std::filesystem::path& path() const { return dir; }

private:
    static void remove(const std::filesystem::path& path) {
        std::error_code ignored;
        std::filesystem::permissions(path, std::filesystem::perms::owner_all,
                                     std::filesystem::perm_options::add, ignored);
        std::filesystem::remove_all(path, ignored);
    }

    std::filesystem::path dir;
};

inline void write_bytes(const std::string& path, const std::vector<unsigned char>& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(bytes.data()), std::streamsize(bytes.size()));
}

inline std::vector<unsigned char> read_bytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::vector<unsigned char>(std::istreambuf_iterator<char>(in), {});
}

// A stream file as the program writes it: the little-endian length, then the text.
inline void write_stream(const std::string& path, const std::string& text) {
    const uint32_t n = uint32_t(text.size());
    std::vector<unsigned char> bytes{uint8_t(n), uint8_t(n >> 8), uint8_t(n >> 16), uint8_t(n >> 24)};
    bytes.insert(bytes.end(), text.begin(), text.end());
    write_bytes(path, bytes);
}

inline std::string read_text(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

// Fatal errors print to standard output; death tests match standard error.
// Call first inside the statement of EXPECT_EXIT.
inline void send_stdout_to_stderr() {
    std::fflush(stdout);
    dup2(STDERR_FILENO, STDOUT_FILENO);
}
