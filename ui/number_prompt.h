#pragma once

#include <cstdint>
#include <optional>

#include "ui/backdrop.h"
#include "model/core/rectangle.h"

// The small modal box in which a number is typed: digits, a leading minus and
// Backspace edit it; the first key replaces the value shown. Return accepts a
// value inside the bounds; outside them the box turns orange, says so and
// stays open. Escape, a press outside the box or a close request cancel.
class Number_Prompt {
public:
    static constexpr int max_chars = 11;

    // Nothing when cancelled; the box stands at (x, y), kept inside the window.
    static std::optional<int32_t> ask(int x, int y, int32_t value, int32_t min, int32_t max);

private:
    Number_Prompt(int x, int y, int32_t value, int32_t min, int32_t max);
    void draw() const;
    static void paint(void* prompt);
    static Backdrop::Area area(const void* prompt);
    void type(char c);
    void erase();
    // The entered value when it lies inside the bounds; else marks the refusal.
    std::optional<int32_t> accept();

    Rectangle box;
    int32_t min;
    int32_t max;
    char text[max_chars + 1] = {};
    int length = 0;
    bool fresh = true;
    bool refused = false;
};
