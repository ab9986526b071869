#include "support/process.h"

#include <sys/wait.h>

#include <cstdio>

Process_Result run_in(const std::filesystem::path& dir, const std::string& command) {
    Process_Result result;
    const std::string line = "cd '" + dir.string() + "' && " + command + " 2>/dev/null";
    FILE* pipe = popen(line.c_str(), "r");
    if (!pipe) return result;
    char chunk[256];
    size_t n;
    while ((n = fread(chunk, 1, sizeof chunk, pipe)) > 0) result.output.append(chunk, n);
    const int status = pclose(pipe);
    result.exit_code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return result;
}
