#include "features/color/color_editor.h"

#include <algorithm>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/ui_colors.h"
#include "features/color/color_tools.h"
#include "model/color/palette.h"
#include "ui/backdrop.h"
#include "platform/image_pool.h"
#include "platform/text_writer.h"
#include "ui/ui_style.h"
#include "platform/wait_for_key.h"

namespace {
constexpr int gap = 5;
constexpr int panes_height = 94;
constexpr SDL_Keycode key_escape = 27;

// Shift first, then Ctrl, then Alt, as everywhere in the program.
bool is_ctrl_class(SDL_Keymod mod) { return !(mod & SDL_KMOD_SHIFT) && (mod & SDL_KMOD_CTRL); }
}  // namespace

Color_Editor::Color_Editor() {
    Main_Window& w = *g_main_window;
    const int outer_w = client_width + Pane::inset_left + Pane::inset_right;
    const int body_h = client_height + Pane::inset_top + Pane::inset_bottom - Pane::header_height;
    const int x = (int(w.width()) - outer_w) / 2;
    const int y = (int(w.height()) - (body_h + Pane::header_height)) / 2;
    frame = std::make_unique<Pane>(Rectangle{x, y, outer_w, body_h}, "Color editor");
    const Rectangle c = frame->client_area();
    widget = std::make_unique<Selected_Color_Area>(c.x, c.y, 151, panes_height);
    const Rectangle wa = widget->outer_area();
    variations = std::make_unique<Color_Variations>(wa.x + wa.width + gap, c.y, 10, 4, 21, 21);
    const Rectangle va = variations->outer_area();
    data = std::make_unique<Pane>(Rectangle{va.x + va.width + gap, c.y, 209, panes_height}, "Data");
    database = std::make_unique<Pane>(Rectangle{c.x, wa.y + wa.height + gap, 586, 50}, "Database");
    const Rectangle da = database->outer_area();
    row_origin = SDL_Point{da.x + 5, da.y + da.height + 21 + 5};
    row_cells = g_palette->page_count() > 0 ? g_palette->count(0) : 0;
    // Tabs stand on a line 21 pixels above the palette row, each as wide as its label.
    int tab_x = row_origin.x;
    for (int p = 0; p < g_palette->page_count(); ++p) {
        const char* name = g_palette->name(p).c_str();
        const int width = w.writer(font_pane_header).measure(name);
        plain_tabs.emplace_back(w.pool().make_passive_pane_header(w.renderer(), width, name));
        selected_tabs.emplace_back(w.pool().make_pane_header(w.renderer(), width, name));
        const int tab_w = selected_tabs.back() ? selected_tabs.back()->width() : 0;
        tabs.push_back(Rectangle{tab_x, row_origin.y - 21, tab_w, 21});
        tab_x += tab_w + 2;
    }
    const int kinds[3] = {button_left, button_ok, button_right};
    const Rectangle outer = frame->outer_area();
    int bx = outer.x + 180;
    for (int i = 0; i < 3; ++i) {
        buttons[i] = std::make_unique<Button_Dialog_Item>(Dialog_Item::no_id, Dialog_Item::no_id, kinds[i]);
        buttons[i]->set_writer(&w.writer(font_regular));
        buttons[i]->set_position(bx, outer.y + outer.height - 34);
        bx += buttons[i]->area.width + 7;
    }
    if (g_color_database) g_color_database->entries_into(named);
    std::stable_sort(named.begin(), named.end(),
                     [](const Named_Color& a, const Named_Color& b) { return compare_by_luminance(a.color, b.color); });
}

Color_Editor::~Color_Editor() = default;

Rectangle Color_Editor::palette_cell_area(int i) const {
    return Rectangle{row_origin.x + i * palette_cell, row_origin.y, palette_cell, palette_cell};
}

Rectangle Color_Editor::swatch_area(int i) const {
    const Rectangle c = database->client_area();
    return Rectangle{c.x + (i % 32) * swatch_cell, c.y + (i / 32) * swatch_cell, swatch_cell, swatch_cell};
}

Rectangle Color_Editor::tab_area(int page) const { return tabs[size_t(page)]; }

int Color_Editor::palette_cell_at(int x, int y) const {
    if (shown_page >= g_palette->page_count()) return -1;
    const int count = std::min(row_cells, g_palette->count(shown_page));
    for (int i = 0; i < count; ++i)
        if (palette_cell_area(i).contains(x, y)) return i;
    return -1;
}

int Color_Editor::swatch_at(int x, int y) const {
    for (int i = 0; i < int(named.size()) && i < 64; ++i)
        if (swatch_area(i).contains(x, y)) return i;
    return -1;
}

void Color_Editor::paint(void* self) { static_cast<Color_Editor*>(self)->draw(); }

Backdrop::Area Color_Editor::area(const void* self) {
    return static_cast<const Color_Editor*>(self)->frame->modal_area();
}

void Color_Editor::draw() {
    Main_Window& w = *g_main_window;
    if (rebuild) {
        variations->rebuild(shown, shown);
        rebuild = false;
    }
    frame->draw();
    widget->set_compare(shown);
    widget->draw();
    variations->draw();
    draw_readout();
    database->draw();
    for (int i = 0; i < int(named.size()) && i < 64; ++i) w.fill_rect(swatch_area(i), named[size_t(i)].color);
    for (int p = 0; p < int(tabs.size()); ++p) {
        Texture* t = (p == shown_page ? selected_tabs : plain_tabs)[size_t(p)].get();
        if (t) t->draw_at(tabs[size_t(p)].x, tabs[size_t(p)].y);
    }
    if (row_cells > 0) {
        w.frame(Rectangle{row_origin.x - 1, row_origin.y - 1, row_cells * palette_cell + 2, palette_cell + 2},
                pane_frame_color);
        w.fill_rect(Rectangle{row_origin.x, row_origin.y, row_cells * palette_cell, palette_cell}, ui_colors[ui_dark_grey]);
        const int count = shown_page < g_palette->page_count() ? std::min(row_cells, g_palette->count(shown_page)) : 0;
        for (int i = 0; i < count; ++i) w.fill_rect(palette_cell_area(i), g_palette->color(shown_page, i));
    }
    for (auto& b : buttons) b->draw();
}

void Color_Editor::draw_readout() {
    data->draw();
    const Rectangle c = data->client_area();
    Text_Writer& writer = g_main_window->writer(font_pane);
    writer.set_cursor(c.x + 1, c.y + 3);
    writer.printf("R: %u, G: %u, B: %u\rAlpha: %u\rLuminance: %.1f", unsigned(shown.red), unsigned(shown.green),
                  unsigned(shown.blue), unsigned(shown.alpha), 100.0 * luminance(shown));
    const int name_y = c.y + 3 + 3 * writer.line_height();
    const int after = writer.write_at(c.x + 1, name_y, "Name: ");
    (void)after;
    writer.write_at(c.x + 1 + writer.measure("Name: "), name_y,
                    g_color_database ? g_color_database->name_of(shown) : Color_Database::no_name);
}

void Color_Editor::hover(int x, int y) {
    if (widget->outer_area().contains(x, y)) {
        shown = widget->color();
    } else if (variations->contains(x, y)) {
        shown = variations->color_at(x, y);
    } else if (const int cell = palette_cell_at(x, y); cell >= 0) {
        shown = g_palette->color(shown_page, cell);
    } else if (const int s = swatch_at(x, y); s >= 0) {
        shown = named[size_t(s)].color;
    }
}

bool Color_Editor::press(int button, int x, int y) {
    if (widget->outer_area().contains(x, y)) {
        widget->press(x, y);
        shown = widget->color();
        return false;
    }
    if (variations->contains(x, y)) {
        widget->set_color(variations->color_at(x, y));
        shown = widget->color();
        return false;
    }
    bool picked = false;
    Color pick;
    if (const int cell = palette_cell_at(x, y); cell >= 0) {
        if (button == SDL_BUTTON_LEFT) {
            if (ctrl_held) {
                g_palette->set_color(shown_page, cell, widget->color());
                return false;
            }
            pick = g_palette->color(shown_page, cell);
            picked = true;
        } else {
            return false;
        }
    } else if (const int s = swatch_at(x, y); s >= 0) {
        pick = named[size_t(s)].color;
        picked = true;
    }
    if (picked) {
        shown = pick;
        widget->set_color(pick);
        rebuild = true;
        return false;
    }
    for (int p = 0; p < int(tabs.size()); ++p) {
        if (!tabs[size_t(p)].contains(x, y)) continue;
        shown_page = p;
        return false;
    }
    if (buttons[0]->area.contains(x, y)) {
        if (g_color_tools) g_color_tools->set_tool_color(0, widget->color());
        return true;
    }
    if (buttons[2]->area.contains(x, y)) {
        if (g_color_tools) g_color_tools->set_tool_color(1, widget->color());
        return true;
    }
    return buttons[1]->area.contains(x, y);
}

void Color_Editor::run(Color start) {
    widget->set_color(start);
    shown = start;
    rebuild = true;
    ctrl_held = false;
    Main_Window& w = *g_main_window;
    bool close_asked = false;
    {
        const Backdrop_Layer layer(paint, this, area);
        SDL_Event event;
        bool open = true;
        while (open) {
            Backdrop::paint();
            w.present();
            if (!wait_event(event)) break;
            switch (event.type) {
                case SDL_EVENT_KEY_DOWN:
                    if (is_ctrl_class(event.key.mod))
                        ctrl_held = true;
                    else if (event.key.key == key_escape)
                        open = false;
                    break;
                case SDL_EVENT_KEY_UP:
                    ctrl_held = false;
                    break;
                case SDL_EVENT_MOUSE_MOTION:
                    hover(int(event.motion.x), int(event.motion.y));
                    break;
                case SDL_EVENT_MOUSE_BUTTON_DOWN:
                    if (press(event.button.button, int(event.button.x), int(event.button.y))) open = false;
                    break;
                // Closing the window closes the editor and goes on to the
                // main window, which asks whether to quit: one close is enough.
                case SDL_EVENT_QUIT:
                case SDL_EVENT_WINDOW_CLOSE_REQUESTED:
                    close_asked = true;
                    open = false;
                    break;
                default:
                    break;
            }
        }
    }
    flush_events();
    if (close_asked) push_quit_request();
    if (g_color_tools) g_color_tools->show_page(shown_page);
}
