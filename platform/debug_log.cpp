#include "platform/debug_log.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>

#include "platform/main_window.h"
#include "platform/wait_for_key.h"

Debug_Log::Debug_Log(size_t capacity)
    : buffer(new char[line_buffer_size]()), capacity(capacity) {}

Debug_Log::~Debug_Log() { delete[] buffer; }

void Debug_Log::append(const char* separator) {
    stored.push_back(std::to_string(line_counter) + separator + buffer);
    ++line_counter;
    if (stored.size() >= capacity) stored.pop_front();
}

void Debug_Log::log(const char* format, ...) {
    va_list args;
    va_start(args, format);
    std::vsnprintf(buffer, line_buffer_size, format, args);
    va_end(args);
    append(": ");
}

void Debug_Log::warn(const char* format, ...) {
    va_list args;
    va_start(args, format);
    std::vsnprintf(buffer, line_buffer_size, format, args);
    va_end(args);
    warning = true;
    append(": (W!) ");
}

void Debug_Log::show(Main_Window& window) {
    window.clear();
    int y = 0;
    const int step = window.line_height();
    for (const std::string& line : stored) {
        window.text(0, y, line.c_str());
        y += step;
    }
    window.text(0, y, "---");
    window.present();
    wait_for_key();
    warning = false;
}
