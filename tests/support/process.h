#pragma once

#include <filesystem>
#include <string>

struct Process_Result {
    int exit_code = -1;
    std::string output;
};

// Runs a shell command in the given directory and collects its standard output.
Process_Result run_in(const std::filesystem::path& dir, const std::string& command);
