#pragma once

#include <cstdint>
#include <deque>
#include <string>

class Main_Window;

// Diagnostic lines shown in the debug monitor. Only as many lines are kept as
// fit on the screen; the counter keeps rising so numbers show what was dropped.
class Debug_Log {
public:
    static constexpr int line_buffer_size = 100;

    // capacity: the number of lines that triggers trimming, normally
    // (window height / line height of the standard font) - 1.
    explicit Debug_Log(size_t capacity);
    ~Debug_Log();
    Debug_Log(const Debug_Log&) = delete;
    Debug_Log& operator=(const Debug_Log&) = delete;

    void log(const char* format, ...) __attribute__((format(printf, 2, 3)));
    void warn(const char* format, ...) __attribute__((format(printf, 2, 3)));
    // The debug monitor: every line, then "---", until a key or a close request.
    void show(Main_Window& window);

    const std::deque<std::string>& lines() const { return stored; }
    bool has_warning() const { return warning; }
    uint32_t counter() const { return line_counter; }

private:
    void append(const char* separator);

    char* buffer;
    std::deque<std::string> stored;
    bool warning = false;
    uint32_t line_counter = 0;
    size_t capacity;
};
