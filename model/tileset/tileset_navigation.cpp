#include "model/tileset/tileset_navigation.h"

namespace {
Tileset_Navigation_Maker installed_maker = nullptr;
}

void set_tileset_navigation_maker(Tileset_Navigation_Maker maker) { installed_maker = maker; }

std::unique_ptr<Tileset_Navigation> make_tileset_navigation(Tile_Strip& strip) {
    return installed_maker ? installed_maker(strip) : nullptr;
}
