#pragma once

#include <cstdint>

// Switches the working directory between the start directory and "data".
// The start directory is reached again with "..", not with a saved path.
class Data_Directory {
public:
    static constexpr uint32_t start = 0;
    static constexpr uint32_t data = 1;

    // 0 when index already is the current one; else 1 if the change of
    // directory worked and 0 if it failed. The index is set before the change,
    // so a failed change still leaves it at the target.
    static int enter(uint32_t index);
    static void leave();
    static uint32_t current() { return current_index; }

private:
    static inline uint32_t current_index = start;
};
