#pragma once

#include <memory>

class Tile_Strip;

// What the editor asks of the pane that shows a tileset's tile strip. Each
// tileset owns one, so the model keeps no drawing code; the editor installs
// the maker that builds the real pane.
class Tileset_Navigation {
public:
    virtual ~Tileset_Navigation() = default;
    virtual void draw() = 0;
    // The command a press at (x, y) gives, or -1 when the press is not for
    // the strip or its buttons.
    virtual int press(int x, int y, bool left) = 0;
    virtual void release() = 0;
    virtual void hover(int x, int y) = 0;
};

using Tileset_Navigation_Maker = std::unique_ptr<Tileset_Navigation> (*)(Tile_Strip& strip);

// With no maker installed tilesets have no navigation pane.
void set_tileset_navigation_maker(Tileset_Navigation_Maker maker);
std::unique_ptr<Tileset_Navigation> make_tileset_navigation(Tile_Strip& strip);
