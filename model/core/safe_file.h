#pragma once

#include <cstdio>
#include <functional>
#include <string>

// Every file the program writes goes through here: the contents go to a new
// file with a unique name beside the target, created exclusively (so never
// through a planted link), are flushed and synced, and only then renamed over
// the target. Whatever fails, the target keeps what it held and the
// temporary file is removed. A read-only target, and anything that is not a
// regular file, are refused.
namespace safe_file {

enum class Links {
    // The user chose the path: a link to a file is followed and the file it
    // points at is replaced, the link kept.
    follow,
    // A name the program derived: a link there is refused.
    refuse,
};

enum class Outcome { written, read_only, not_a_file, link, failed };

// fill writes the contents and returns false on any failed write.
Outcome write(const std::string& path, const std::function<bool(std::FILE*)>& fill, Links links);
inline bool written(const std::string& path, const std::function<bool(std::FILE*)>& fill, Links links) {
    return write(path, fill, links) == Outcome::written;
}

// What a file looked like when it was read or written, to tell whether
// another program changed it since.
struct Stamp {
    bool exists = false;
    unsigned long long size = 0;
    unsigned long long inode = 0;
    long long modified_ns = 0;
    bool operator==(const Stamp&) const = default;
};
Stamp stamp_of(const std::string& path);

// A regular file (not a link, a folder, a pipe or a device) stands at the path.
bool is_plain_file(const std::string& path);
// The file a link points at (the path itself when it is no link).
std::string link_target(const std::string& path);

// For tests: make one step of every following write fail as a full disk, a
// failed sync or a failed rename would (none: no fault).
enum class Step { none, create, write, sync, rename };
void inject_fault(Step step);

}  // namespace safe_file
