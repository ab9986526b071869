#pragma once

#include <SDL3/SDL.h>

#include <memory>
#include <vector>

#include "ui/backdrop.h"
#include "model/core/rectangle.h"

// One entry of a menu: a command (or -1 for a separator or a title) and the
// text that marks the row.
struct Menu_Item {
    Rectangle area;
    const char* label;
    int command;
};

struct Menu {
    Menu_Item title;
    std::vector<Menu_Item> items;
    Rectangle drop_area;

    // The command of the first item under the point; -1 for a separator or none.
    int item_at(int x, int y) const;
    void draw(SDL_Point point, bool open, bool highlight_title) const;
};

// The six drop-down menus at the top-left of the window. Choosing an entry
// returns its command, which the editor runs as if its key had been pressed.
// Highlighting is done by switching to the header font, not by a bar.
class Menu_Bar {
public:
    static constexpr int height = 25;
    static constexpr int menu_count = 6;

    Menu_Bar();

    // The menu whose title holds the point, or -1.
    int menu_at(SDL_Point point) const;
    // Opens the menu and runs its loop, painting the backdrop with the menu
    // as its top layer; the chosen command or -1.
    int track(SDL_Point point, int menu);
    void draw(SDL_Point point) const;

    const Rectangle& bar_area() const { return area; }
    const Menu& menu(int i) const { return *menus[size_t(i)]; }
    int open_menu() const { return selected; }

private:
    static void paint_open(void* bar);
    static Backdrop::Area open_area(const void* bar);

    Rectangle area;
    std::vector<std::unique_ptr<Menu>> menus;
    int selected = -1;
    // Where the pointer is while a menu is open.
    SDL_Point pointer{-1, -1};
};
