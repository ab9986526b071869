#pragma once

#include <functional>
#include <memory>

#include "features/color/color_handles.h"
#include "features/color/hsv_selector.h"
#include "features/color/palette_area.h"
#include "features/color/tool_color.h"

// The two tool colours and the panes they are chosen with: the left and
// right button colours and the handles in one stack, the HSV selector and
// the palette page in another, each pane 4 pixels below the one before.
class Color_Tools {
public:
    static constexpr int gap = 4;

    // swatches: the corner of the colour and handles stack; mixers: the
    // corner of the selector and palette stack.
    Color_Tools(SDL_Point swatches, SDL_Point mixers);
    ~Color_Tools();
    Color_Tools(const Color_Tools&) = delete;
    Color_Tools& operator=(const Color_Tools&) = delete;

    // Index 0 is the left button's colour; any other the right one's.
    Color color(int index) const { return (index == 0 ? left : right)->color; }
    Color current_color() const { return color(int(selected)); }
    uint32_t selected_index() const { return selected; }
    void set_tool_color(int index, Color c);
    void swap_colors();
    // button 0 = left, 1 = right; true when the press was consumed.
    bool mouse_down(int button, int x, int y);
    void show_page(int page) { palette->show_page(page); }
    void draw();
    // The whole region each stack covers, for hit tests and layout checks.
    Rectangle swatch_stack() const;
    Rectangle mixer_stack() const;

    Tool_Color& left_pane() { return *left; }
    Tool_Color& right_pane() { return *right; }
    Color_Handles& handles_pane() { return *handles; }
    HSV_Selector& selector() { return *hsv; }
    Palette_Area& palette_area() { return *palette; }

    // Told of every tool colour change.
    std::function<void(int index, Color c)> color_changed;

private:
    // A change from the handles: the colour only, the handles keep their form.
    void set_from_handles(int index, Color c);

    std::unique_ptr<Tool_Color> left;
    std::unique_ptr<Tool_Color> right;
    std::unique_ptr<Color_Handles> handles;
    std::unique_ptr<Palette_Area> palette;
    std::unique_ptr<HSV_Selector> hsv;
    uint32_t selected = 0;
};

extern Color_Tools* g_color_tools;
