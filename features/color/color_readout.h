#pragma once

#include "features/color/swatch.h"
#include "ui/pane.h"

// A tool option row showing a colour: a swatch and its channel values.
class Color_Readout : public Pane {
public:
    Color_Readout(const Rectangle& area, const char* title);

    void draw() override;
    void set(Color c) { shown = c; }
    Color color() const { return shown; }

private:
    Color shown;
    Swatch swatch;
};
