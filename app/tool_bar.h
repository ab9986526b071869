#pragma once

#include <array>

#include "ui/element.h"

// The column of tool buttons at the left edge of the window. Each button
// carries one command and an icon pair (plain and selected); one slot is a
// separator between the drawing tools and the selection tools.
class Tool_Bar : public Element {
public:
    static constexpr int button_count = 22;
    static constexpr int button_size = 24;
    static constexpr int separator_height = 7;

    struct Button {
        int command;  // -1 for the separator
        int icon;     // the plain icon; the selected one follows it on the sheet
    };
    static const std::array<Button, button_count> buttons;

    Tool_Bar(int x, int y, int pressed_tool);

    void draw() override;
    // The index of the button under the point, or -1 (the separator is none).
    int button_at(int x, int y) const;
    int command_at(int x, int y) const;
    // Presses the first button carrying this tool and releases the others.
    void press_tool(int command);
    // The seam buttons stay down while their offset is on.
    void set_seam(bool horizontal, bool down);
    bool seam_down(bool horizontal) const { return horizontal ? seam_h : seam_v; }
    Rectangle button_area(int index) const;

private:
    int pressed = -1;
    bool seam_h = false;
    bool seam_v = false;
};
