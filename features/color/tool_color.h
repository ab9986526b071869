#pragma once

#include "features/color/swatch.h"
#include "ui/pane.h"

// One of the two tool colours, for the left or the right mouse button.
class Tool_Color : public Pane {
public:
    static constexpr int body_height = 46;

    Tool_Color(int x, int y, const char* label);

    void draw() override;
    Color color = Color();
    // The selected colour is the one the handles and the editor work on.
    bool selected = false;

private:
    Swatch swatch;
};
