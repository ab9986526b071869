#include "app/tileset_tabs.h"

#include <algorithm>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/ui_colors.h"
#include "model/tileset/tileset_list.h"
#include "platform/text_writer.h"

namespace {
Text_Writer& writer() { return g_main_window->writer(font_pane); }

// Every tab is as wide as its name, but all of them share the row: when they
// would not fit, each gets an equal share and long names are cut.
int tab_width(Tileset_List& list, int index, int row_width) {
    const int count = list.count();
    const int share = count > 0 ? row_width / count : row_width;
    const int wanted = writer().measure(list.at(index).display_name().c_str()) + 2 * Tileset_Tabs::padding;
    return std::max(Tileset_Tabs::min_width, std::min(wanted, share));
}
}  // namespace

// A name too long for its tab is cut and ends in "..", but the modified
// mark "*" always shows: it is what tells unsaved work apart.
std::string Tileset_Tabs::tab_label(const std::string& display_name, int room) {
    Text_Writer& t = writer();
    if (t.measure(display_name.c_str()) <= room) return display_name;
    const bool marked = !display_name.empty() && display_name.back() == '*';
    const char* tail = marked ? "..*" : "..";
    const int tail_width = t.measure(tail);
    int chars = int(display_name.size()) - (marked ? 1 : 0);
    while (chars > 0 && t.measure_prefix(display_name.c_str(), chars) + tail_width > room) --chars;
    return display_name.substr(0, size_t(chars)) + tail;
}

Rectangle Tileset_Tabs::tab_area(Tileset_List& list, int index) const {
    int x = area.x;
    for (int i = 0; i < index; ++i) x += tab_width(list, i, area.width) + 2;
    return Rectangle{x, area.y + area.height - tab_height, tab_width(list, index, area.width), tab_height};
}

void Tileset_Tabs::draw(Tileset_List& list) {
    Main_Window& w = *g_main_window;
    Text_Writer& t = writer();
    for (int i = 0; i < list.count(); ++i) {
        const Rectangle r = tab_area(list, i);
        if (r.x >= area.x + area.width) break;
        const bool current = &list.at(i) == list.current();
        w.bevel_fill(r, current ? ui_colors[ui_light_grey] : ui_colors[ui_grey_112]);
        w.clip(Rectangle{r.x + 1, r.y + 1, r.width - 2, r.height - 2});
        t.set_cursor(r.x + padding, r.y + 2);
        t.write(tab_label(list.at(i).display_name(), r.width - 2 * padding).c_str());
        w.end_clip();
    }
}

int Tileset_Tabs::tab_at(Tileset_List& list, int x, int y) const {
    if (!area.contains(x, y)) return -1;
    for (int i = 0; i < list.count(); ++i)
        if (tab_area(list, i).contains(x, y)) return i;
    return -1;
}

bool Tileset_Tabs::click(Tileset_List& list, int x, int y) {
    const int index = tab_at(list, x, y);
    if (index < 0 || &list.at(index) == list.current()) return false;
    list.make_current(list.at(index));
    return true;
}
