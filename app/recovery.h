#pragma once

#include <string>
#include <vector>

// What keeps a user's work when the program must end on a fatal error (a
// truncated file read, say): every modified open tileset is written into the
// "recovery" folder of the data directory first, and the next start says
// where those files are.
namespace recovery {

// The folder, as an absolute path, so that it is found whatever the working
// directory is when the error strikes. Start-up sets it; shut-down clears it.
void set_folder(const std::string& path);
const std::string& folder();

// The fatal-error hook: writes each modified open tileset as
// "<name>-<date>-<time>.wst" into the folder, synchronously and silently.
void save_open_work();

// The recovery files in a folder, sorted by name; none when it is missing.
std::vector<std::string> files_in(const std::string& path);

// The note shown at start while recovery files exist, or empty.
std::string start_note(const std::string& path);

}  // namespace recovery
