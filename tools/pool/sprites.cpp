#include "sprites.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {
#include "sprite_places.inc"
}  // namespace

Rect sprite_rect(const char* name)
{
    for (const Sprite_Place& place : sprite_places)
        if (std::strcmp(place.name, name) == 0)
            return place.rect;
    std::fprintf(stderr, "make_pool: no sprite named \"%s\"\n", name);
    std::exit(1);
}

Area sprite_area(Canvas& canvas, const char* name) { return Area(canvas, sprite_rect(name)); }

int sprite_count() { return static_cast<int>(sizeof sprite_places / sizeof sprite_places[0]); }
