#pragma once

#include <memory>

#include "model/tileset/tileset_navigation.h"
#include "ui/pane.h"

class Tile_Strip;

// The "Tileset navigation" pane: a bar of six buttons around the current
// tile's number, below the canvas, and the tileset's tile strip along the
// bottom of the window. Buttons that cannot act are drawn grey; the one under
// a held button is drawn pressed until the release.
class Tile_Navigation_Pane : public Pane, public Tileset_Navigation {
public:
    // The body holds one row of buttons; the header sits above it.
    static constexpr Rectangle pane_area{388, 578, 196, 33};
    static constexpr int strip_x = 4;
    // The strip's distance from the window's bottom edge.
    static constexpr int strip_bottom_gap = 28;
    static constexpr int button_count = 7;
    static constexpr int id_box = 3;

    explicit Tile_Navigation_Pane(Tile_Strip& strip);

    void draw() override;
    int press(int x, int y, bool left) override;
    void release() override { pressed = -1; }
    void hover(int x, int y) override;

    // The button under a window point, or -1.
    int button_at(int x, int y) const;
    Rectangle button_area(int button) const;
    // The command a button runs; the id box runs none.
    static int command_of(int button);
    bool can_act(int button) const;
    int pressed_button() const { return pressed; }
    int hover_index() const { return hovered; }

private:
    void draw_strip();
    void draw_buttons();
    void draw_current_id(int x, int y);

    Tile_Strip& strip;
    int hovered = -1;
    int pressed = -1;
};

std::unique_ptr<Tileset_Navigation> make_tile_navigation_pane(Tile_Strip& strip);
