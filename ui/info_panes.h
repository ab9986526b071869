#pragma once

#include <cstdint>

#include "ui/pane.h"

// A pane showing a pair of numbers, such as a pixel position, written one
// pixel above the client area in the pane font.
class Location_Info : public Pane {
public:
    Location_Info(const Rectangle& area, const char* title) : Pane(area, title) {}

    void draw() override;
    void set(int32_t first, int32_t second) {
        a = first;
        b = second;
    }
    int32_t first() const { return a; }
    int32_t second() const { return b; }

private:
    int32_t a = 0;
    int32_t b = 0;
};

// A pane showing one number, placed as Location_Info places its pair.
class Number_Info : public Pane {
public:
    Number_Info(const Rectangle& area, const char* title) : Pane(area, title) {}

    void draw() override;
    void set(int32_t v) { number = v; }
    int32_t value() const { return number; }

private:
    int32_t number = 0;
};
