#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

// A raw data file: a path, a C stream and an open mark, with whole-block reads
// and writes. A short block read is fatal; a failed open is the caller's to handle.
class Data_File {
public:
    explicit Data_File(std::string path);
    ~Data_File();
    Data_File(const Data_File&) = delete;
    Data_File& operator=(const Data_File&) = delete;

    // Already open: true without reopening, whatever the mode.
    bool open(const char* mode);
    bool open_read() { return open("rb"); }
    bool open_write() { return open("wb"); }
    void close();
    bool is_open() const { return open_mark; }
    const std::string& path() const { return file_path; }
    std::FILE* stream() const { return file; }

    // Ends the program with "Unable to load block from " and the path when
    // fewer than size bytes can be read. A settings file is moved aside first
    // (NAME.damaged-DATE), so that the next start runs on defaults.
    void read_block(void* buffer, size_t size);
    void set_settings_file(bool on) { settings = on; }
    // The name a damaged settings file is moved to, and the files of that
    // kind in a folder (sorted).
    static std::string damaged_name(const std::string& path);
    static std::vector<std::string> damaged_files(const std::string& folder);
    size_t write_block(const void* buffer, size_t size);

    int32_t save_whole(const void* buffer, size_t size);
    bool load_whole(void* buffer, size_t size);
    bool load_whole_or_die(void* buffer, size_t size);

private:
    std::FILE* file = nullptr;
    std::string file_path;
    bool open_mark = false;
    bool settings = false;
};
