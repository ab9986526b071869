#include "model/core/data_file.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <system_error>
#include <utility>

#include "model/core/fatal.h"

Data_File::Data_File(std::string path) : file_path(std::move(path)) {}

Data_File::~Data_File() { close(); }

bool Data_File::open(const char* mode) {
    if (open_mark) return true;
    file = std::fopen(file_path.c_str(), mode);
    if (!file) return false;
    open_mark = true;
    return true;
}

void Data_File::close() {
    if (!open_mark) return;
    std::fclose(file);
    file = nullptr;
    open_mark = false;
}

void Data_File::read_block(void* buffer, size_t size) {
    if (size == 0) return;
    if (open_mark && std::fread(buffer, size, 1, file) == 1) return;
    if (settings) {
        close();
        std::rename(file_path.c_str(), damaged_name(file_path).c_str());
    }
    fatal_error("Unable to load block from ", file_path.c_str());
}

std::string Data_File::damaged_name(const std::string& path) {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    char stamp[32];
    std::strftime(stamp, sizeof stamp, "%Y%m%d-%H%M%S", &local);
    return path + ".damaged-" + stamp;
}

std::vector<std::string> Data_File::damaged_files(const std::string& folder) {
    std::vector<std::string> found;
    std::error_code error;
    for (std::filesystem::directory_iterator it(folder, error), end; !error && it != end; it.increment(error))
        if (it->path().filename().string().find(".damaged-") != std::string::npos)
            found.push_back(it->path().filename().string());
    std::sort(found.begin(), found.end());
    return found;
}

size_t Data_File::write_block(const void* buffer, size_t size) {
    if (!open_mark) return 0;
    return std::fwrite(buffer, size, 1, file);
}

int32_t Data_File::save_whole(const void* buffer, size_t size) {
    if (!open_write()) return -1;
    write_block(buffer, size);
    close();
    return static_cast<int32_t>(size);
}

bool Data_File::load_whole(void* buffer, size_t size) {
    if (!open_read()) return false;
    read_block(buffer, size);
    close();
    return true;
}

bool Data_File::load_whole_or_die(void* buffer, size_t size) {
    if (!load_whole(buffer, size)) fatal_error("Unable to load file ", file_path.c_str());
    return true;
}
