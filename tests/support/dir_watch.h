#pragma once

#include <sys/stat.h>

#include <filesystem>
#include <set>
#include <string>

// The names in one directory, taken once and compared again cheaply: the
// directory's modification time moves whenever an entry is added, removed or
// renamed, and only then is the directory listed.
class Dir_Watch {
public:
    explicit Dir_Watch(std::filesystem::path watched) : dir(std::move(watched)), names(list()), stamp(modified()) {}

    // The files that appeared since the watch began; empty when none did.
    // Entries that went, and new directories (the editor makes none, a build
    // beside it does), are no concern of a watch for stray files.
    std::string changes() {
        const timespec now = modified();
        if (now.tv_sec == stamp.tv_sec && now.tv_nsec == stamp.tv_nsec) return {};
        stamp = now;
        const std::set<std::string> current = list();
        std::string found;
        std::error_code ignored;
        for (const std::string& n : current)
            if (!names.count(n) && !std::filesystem::is_directory(dir / n, ignored)) found += " " + (dir / n).string();
        return found;
    }

private:
    std::set<std::string> list() const {
        std::set<std::string> found;
        std::error_code ignored;
        for (const auto& entry : std::filesystem::directory_iterator(dir, ignored))
            found.insert(entry.path().filename().string());
        return found;
    }
    timespec modified() const {
        struct stat s {};
        stat(dir.c_str(), &s);
        return s.st_mtim;
    }

    std::filesystem::path dir;
    std::set<std::string> names;
    timespec stamp;
};
