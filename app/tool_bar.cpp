#include "app/tool_bar.h"

#include "model/core/commands.h"
#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/sprites.h"

// The filled shapes carry their own commands; the icon of a clone brush is
// the stamp brush, the pen selector the brush selector, the mover the scroll
// tool and "sel actions" the work selection.
const std::array<Tool_Bar::Button, Tool_Bar::button_count> Tool_Bar::buttons = {{
    {command_pen, sprite_icon_pen},
    {command_dropper, sprite_icon_dropper},
    {command_lightness_pen, sprite_icon_lighten_darken},
    {command_colorize_pen, sprite_icon_colorize},
    {command_flood_fill, sprite_icon_flood_fill},
    {command_line, sprite_icon_line},
    {command_rectangle, sprite_icon_rectangle},
    {command_filled_rectangle, sprite_icon_filled_rectangle},
    {command_circle, sprite_icon_circle},
    {command_filled_circle, sprite_icon_filled_circle},
    {command_stamp_brush, sprite_icon_clone_brush},
    {command_smudge_brush, sprite_icon_smudge},
    {-1, sprite_verti_icon_separator},
    {command_rectangle_selector, sprite_icon_rectangle_selector},
    {command_circle_selector, sprite_icon_circle_selector},
    {command_brush_selector, sprite_icon_pen_selector},
    {command_wand_selector, sprite_icon_magic_wand},
    {command_work_selection, sprite_icon_sel_actions},
    {command_scroll, sprite_icon_mover},
    {command_freehand_rotate, sprite_icon_rotate},
    {command_horizontal_seam_tool, sprite_icon_horizontal_seam},
    {command_vertical_seam_tool, sprite_icon_vertical_seam},
}};

namespace {
int slot_height(int index) {
    return Tool_Bar::buttons[size_t(index)].command < 0 ? Tool_Bar::separator_height : Tool_Bar::button_size;
}
}  // namespace

Tool_Bar::Tool_Bar(int x, int y, int pressed_tool) : Element(Rectangle{x, y, button_size, 0}) {
    int height = 0;
    for (int i = 0; i < button_count; ++i) height += slot_height(i);
    area.height = height;
    press_tool(pressed_tool);
}

Rectangle Tool_Bar::button_area(int index) const {
    int y = area.y;
    for (int i = 0; i < index; ++i) y += slot_height(i);
    return Rectangle{area.x, y, button_size, slot_height(index)};
}

void Tool_Bar::draw() {
    Main_Window& w = *g_main_window;
    int y = area.y;
    for (int i = 0; i < button_count; ++i) {
        const Button& b = buttons[size_t(i)];
        bool down = i == pressed;
        if (b.command == command_horizontal_seam_tool) down = seam_h;
        if (b.command == command_vertical_seam_tool) down = seam_v;
        w.sprite(b.command >= 0 && down ? b.icon + 1 : b.icon, area.x, y);
        y += slot_height(i);
    }
}

int Tool_Bar::button_at(int x, int y) const {
    if (!area.contains(x, y)) return -1;
    for (int i = 0; i < button_count; ++i)
        if (buttons[size_t(i)].command >= 0 && button_area(i).contains(x, y)) return i;
    return -1;
}

int Tool_Bar::command_at(int x, int y) const {
    const int i = button_at(x, y);
    return i < 0 ? -1 : buttons[size_t(i)].command;
}

void Tool_Bar::press_tool(int command) {
    for (int i = 0; i < button_count; ++i)
        if (buttons[size_t(i)].command == command) {
            pressed = i;
            return;
        }
}

void Tool_Bar::set_seam(bool horizontal, bool down) {
    if (horizontal)
        seam_h = down;
    else
        seam_v = down;
}
