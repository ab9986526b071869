#include "ui/menu_bar.h"

#include "model/core/commands.h"
#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/ui_colors.h"
#include "ui/backdrop.h"
#include "platform/text_writer.h"
#include "platform/wait_for_key.h"

namespace {
struct Row {
    const char* label;
    int command;
};

const char* const titles[Menu_Bar::menu_count] = {" File ", " Edit ", " Tile ", " Tileset ", " Tools ", " Help "};
const char* const separator = " --- ";

// Each menu's rows end at the first label that begins with "$".
const Row menu_rows[Menu_Bar::menu_count][25] = {
    {{" New ", 55}, {separator, -1}, {" Load ", 56}, {separator, -1}, {" Save ", 60}, {" Save as...", 59},
     {" Export as .bmp", 58}, {separator, -1}, {" Close ", 54}, {separator, -1}, {" Options ", 77},
     {separator, -1}, {" Exit ", 61}, {"$", -1}},
    {{" Undo ", 87}, {" Redo ", 88}, {separator, -1}, {" Copy ", 47}, {" Cut ", 49}, {separator, -1},
     {" Paste ", 50}, {" Clone ", 51}, {separator, -1}, {" ", 48}, {" ", 53}, {" ", 52}, {separator, -1},
     {" Deselect ", 22}, {" Invert selection ", 23}, {separator, -1}, {" Dumb fill ", 24}, {" Clear ", 25},
     {"$", -1}},
    {{" Anti-alias ", 70}, {separator, -1}, {" Flip ", 34}, {" Mirror ", 33}, {" Rotate 90 CW ", 31},
     {" Rotate 90 CCW ", 32}, {" ", 10}, {"$", -1}},
    {{" View in real size ", 62}, {" Arrange/Select ", 63}, {separator, -1}, {" Add new tile ", 64},
     {" Insert new tile ", 65}, {" Delete tile ", 67}, {separator, -1}, {" Statistics ", 68}, {"$", -1}},
    {{" Color editor ", 75}, {" Map editor ", 76}, {" View undo history ", 82}, {"$", -1}},
    {{" Keyboard shortcuts ", 80}, {" Mouse commands ", 81}, {" About ", 79}, {"$", -1}},
};

const Color menu_background = ui_colors[ui_light_grey];
const Color menu_frame = ui_colors[ui_dark_grey];

Text_Writer& writer(bool highlighted) { return g_main_window->writer(highlighted ? font_header : font_regular); }

// The width a command row needs: its name and two blanks, and for a keyed
// command its label and "( )".
int row_width(const Row& row) {
    Text_Writer& t = writer(false);
    if (row.command < 0) return t.measure(row.label);
    int w = t.measure(commands::name(row.command)) + t.measure("  ");
    if (commands::has_key(row.command)) w += t.measure(commands::key_label(row.command)) + t.measure("( )");
    return w;
}

void draw_item(const Menu_Item& item, bool highlighted) {
    Text_Writer& t = writer(highlighted);
    t.set_cursor(item.area.x + 2, item.area.y + 3);
    if (item.command < 0) {
        t.write(item.label);
        return;
    }
    t.write(" ");
    t.printf("%s", commands::name(item.command));
    if (commands::has_key(item.command)) t.printf(" (%s)", commands::key_label(item.command));
}
}  // namespace

int Menu::item_at(int x, int y) const {
    for (const Menu_Item& item : items)
        if (item.area.contains(x, y)) return item.command;
    return -1;
}

void Menu::draw(SDL_Point point, bool open, bool highlight_title) const {
    Text_Writer& t = writer(highlight_title || open);
    t.set_cursor(title.area.x, title.area.y + 1);
    t.write(title.label);
    if (!open) return;
    Main_Window& w = *g_main_window;
    w.fill_rect(drop_area, menu_background);
    w.frame(drop_area, menu_frame);
    for (const Menu_Item& item : items)
        draw_item(item, item.command >= 0 && item.area.contains(point.x, point.y));
}

Menu_Bar::Menu_Bar() {
    int x = 0;
    for (int m = 0; m < menu_count; ++m) {
        auto menu = std::make_unique<Menu>();
        const int title_w = writer(false).measure(titles[m]);
        menu->title = Menu_Item{Rectangle{x, 0, title_w, height}, titles[m], -1};
        int rows = 0;
        int width = 0;
        for (; menu_rows[m][rows].label[0] != '$'; ++rows) width = std::max(width, row_width(menu_rows[m][rows]));
        // One pixel short of the rows, as the menus have always been.
        menu->drop_area = Rectangle{x, height, width, 4 + height * rows - 1};
        for (int k = 0; k < rows; ++k)
            menu->items.push_back(
                Menu_Item{Rectangle{x, height + height * k, width, height}, menu_rows[m][k].label, menu_rows[m][k].command});
        menus.push_back(std::move(menu));
        x += title_w;
    }
    area = Rectangle{0, 0, x, height};
}

int Menu_Bar::menu_at(SDL_Point point) const {
    if (!area.contains(point.x, point.y)) return -1;
    for (int m = 0; m < menu_count; ++m)
        if (menus[size_t(m)]->title.area.contains(point.x, point.y)) return m;
    return -1;
}

// While a menu is open only its title is highlighted: the point the editor
// passes is where the menu was opened, not where the pointer is now.
void Menu_Bar::draw(SDL_Point point) const {
    const int hover = selected >= 0 ? selected : menu_at(point);
    for (int m = 0; m < menu_count; ++m) menus[size_t(m)]->draw(point, false, m == hover);
}

// The open menu owns the bar: it paints the bar whole, then its drop-down.
void Menu_Bar::paint_open(void* bar) {
    const Menu_Bar& self = *static_cast<const Menu_Bar*>(bar);
    g_main_window->fill_opaque(self.area, ui_colors[background_color_index]);
    self.draw(self.pointer);
    self.menus[size_t(self.selected)]->draw(self.pointer, true, true);
}

Backdrop::Area Menu_Bar::open_area(const void* bar) {
    const Menu_Bar& self = *static_cast<const Menu_Bar*>(bar);
    return Backdrop::Area{{self.area, self.menus[size_t(self.selected)]->drop_area}, 0};
}

int Menu_Bar::track(SDL_Point point, int menu) {
    selected = menu;
    pointer = point;
    int result = -1;
    {
        const Backdrop_Layer layer(paint_open, this, open_area);
        SDL_Event event;
        for (;;) {
            Backdrop::paint();
            g_main_window->present();
            if (!wait_event(event)) break;
            if (event.type == SDL_EVENT_QUIT || event.type == SDL_EVENT_KEY_DOWN) break;
            if (event.type == SDL_EVENT_MOUSE_MOTION) {
                pointer = SDL_Point{int(event.motion.x), int(event.motion.y)};
                const int over = menu_at(pointer);
                if (over >= 0) selected = over;
            } else if (event.type == SDL_EVENT_MOUSE_BUTTON_DOWN) {
                const int x = int(event.button.x);
                const int y = int(event.button.y);
                result = menus[size_t(selected)]->item_at(x, y);
                if (result >= 0) break;
                // A press on a separator keeps the menu open; anywhere else closes it.
                if (!menus[size_t(selected)]->drop_area.contains(x, y)) break;
            }
        }
    }
    selected = -1;
    flush_events();
    return result;
}
