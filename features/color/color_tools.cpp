#include "features/color/color_tools.h"

Color_Tools* g_color_tools = nullptr;

namespace {
int below(const Pane& p) { return p.outer_area().y + p.outer_area().height + Color_Tools::gap; }
}  // namespace

Color_Tools::Color_Tools(SDL_Point swatches, SDL_Point mixers) {
    left = std::make_unique<Tool_Color>(swatches.x, swatches.y, "Left button color");
    right = std::make_unique<Tool_Color>(swatches.x, below(*left), "Right button color");
    handles = std::make_unique<Color_Handles>(swatches.x, below(*right));
    hsv = std::make_unique<HSV_Selector>(mixers.x, mixers.y);
    palette = std::make_unique<Palette_Area>(mixers.x, below(*hsv), 0, 0, 8, 4);
    left->selected = true;
    hsv->picked = [this](int button, Color c) { set_tool_color(button, c); };
    handles->changed = [this](int index, Color c) { set_from_handles(index, c); };
}

// Deleted in the order left, right, handles, selector, palette.
Color_Tools::~Color_Tools() {
    left.reset();
    right.reset();
    handles.reset();
    hsv.reset();
    palette.reset();
}

void Color_Tools::set_tool_color(int index, Color c) {
    (index == 0 ? left : right)->color = c;
    handles->set_color(c);
    selected = index == 0 ? 0 : 1;
    left->selected = selected == 0;
    right->selected = selected == 1;
    if (color_changed) color_changed(index == 0 ? 0 : 1, c);
}

void Color_Tools::set_from_handles(int index, Color c) {
    (index == 0 ? left : right)->color = c;
    if (color_changed) color_changed(index == 0 ? 0 : 1, c);
}

// The selected colour stays the selected one after the swap.
void Color_Tools::swap_colors() {
    const Color a = left->color;
    const Color b = right->color;
    const uint32_t keep = selected;
    set_tool_color(1 - int(keep), keep == 0 ? a : b);
    set_tool_color(int(keep), keep == 0 ? b : a);
}

bool Color_Tools::mouse_down(int button, int x, int y) {
    if (palette->contains(x, y)) {
        const Color c = palette->color_at(x, y);
        hsv->set_hue_color(c);
        set_tool_color(button, c);
        return true;
    }
    if (hsv->mouse_down(button, x, y)) return true;
    if (handles->contains(x, y)) {
        const int row = handles->handle_at(x, y);
        if (row >= 0) {
            handles->drag(row, button);
            return false;
        }
        return handles->click_button(x, y);
    }
    return false;
}

void Color_Tools::draw() {
    left->draw();
    right->draw();
    handles->draw();
    hsv->draw();
    palette->draw();
}

Rectangle Color_Tools::swatch_stack() const {
    const Rectangle a = left->outer_area();
    const Rectangle b = handles->outer_area();
    return Rectangle{a.x, a.y, a.width, b.y + b.height - a.y};
}

Rectangle Color_Tools::mixer_stack() const {
    const Rectangle a = hsv->outer_area();
    const Rectangle b = palette->outer_area();
    return Rectangle{a.x, a.y, a.width, b.y + b.height - a.y};
}
