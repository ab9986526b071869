#pragma once

#include <string>
#include <vector>

#include "model/core/rectangle.h"

class Tileset_List;

// One tab per open tileset above the canvas, showing its display name; the
// current one is raised. A click on a tab makes that tileset current.
class Tileset_Tabs {
public:
    static constexpr int tab_height = 22;
    static constexpr int padding = 8;
    static constexpr int min_width = 40;

    explicit Tileset_Tabs(const Rectangle& area) : area(area) {}

    void draw(Tileset_List& list);
    // The index of the tileset whose tab holds the point, or -1.
    int tab_at(Tileset_List& list, int x, int y) const;
    // Offers the click to the tabs; true when it made another tileset current.
    bool click(Tileset_List& list, int x, int y);
    Rectangle tab_area(Tileset_List& list, int index) const;
    // What a tab of this much room for text shows of a display name.
    static std::string tab_label(const std::string& display_name, int room);

private:
    Rectangle area;
};
