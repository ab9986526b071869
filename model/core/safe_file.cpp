#include "model/core/safe_file.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace safe_file {
namespace {
Step fault = Step::none;

// The mode a new file gets: what the user's umask leaves of rw-rw-rw-.
mode_t new_file_mode() {
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

bool fails(Step step) { return fault == step; }
}  // namespace

void inject_fault(Step step) { fault = step; }

Stamp stamp_of(const std::string& path) {
    struct stat info {};
    Stamp stamp;
    if (stat(path.c_str(), &info) != 0) return stamp;
    stamp.exists = true;
    stamp.size = static_cast<unsigned long long>(info.st_size);
    stamp.inode = static_cast<unsigned long long>(info.st_ino);
    stamp.modified_ns = static_cast<long long>(info.st_mtim.tv_sec) * 1000000000LL + info.st_mtim.tv_nsec;
    return stamp;
}

std::string link_target(const std::string& path) {
    std::error_code error;
    const fs::path real = fs::canonical(path, error);
    return error ? path : real.string();
}

bool is_plain_file(const std::string& path) {
    struct stat info {};
    return lstat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode);
}

Outcome write(const std::string& path, const std::function<bool(std::FILE*)>& fill, Links links) {
    if (path.empty()) return Outcome::failed;
    std::string target = path;
    struct stat seen {};
    if (lstat(path.c_str(), &seen) == 0 && S_ISLNK(seen.st_mode)) {
        if (links == Links::refuse) return Outcome::link;
        std::error_code error;
        const fs::path real = fs::canonical(path, error);
        // A dangling link names no file to replace.
        if (error) return Outcome::link;
        target = real.string();
    }
    mode_t mode = new_file_mode();
    struct stat existing {};
    if (stat(target.c_str(), &existing) == 0) {
        if (!S_ISREG(existing.st_mode)) return Outcome::not_a_file;
        // The mode bits too: the superuser passes every access check.
        if ((existing.st_mode & 0222) == 0 || access(target.c_str(), W_OK) != 0) return Outcome::read_only;
        mode = existing.st_mode & 07777;
    }

    std::string temporary = target + ".saving-XXXXXX";
    const int fd = fails(Step::create) ? -1 : mkostemp(temporary.data(), O_CLOEXEC);
    if (fd < 0) return Outcome::failed;
    std::FILE* file = fdopen(fd, "wb");
    if (!file) {
        close(fd);
        unlink(temporary.c_str());
        return Outcome::failed;
    }
    bool ok = fill(file) && !fails(Step::write);
    ok = std::fflush(file) == 0 && ok;
    ok = ok && !fails(Step::sync) && fsync(fileno(file)) == 0;
    ok = ok && fchmod(fileno(file), mode) == 0;
    ok = std::fclose(file) == 0 && ok;
    ok = ok && !fails(Step::rename) && std::rename(temporary.c_str(), target.c_str()) == 0;
    if (!ok) {
        unlink(temporary.c_str());
        return Outcome::failed;
    }
    return Outcome::written;
}

}  // namespace safe_file
