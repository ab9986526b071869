#pragma once

#include <SDL3/SDL.h>

#include <memory>
#include <vector>

#include "platform/texture.h"
#include "model/color/color_database.h"
#include "features/color/color_variations.h"
#include "features/color/selected_color_area.h"
#include "ui/button_dialog_item.h"
#include "ui/pane.h"

// The modal "Color editor": the colour being edited, its variations, its
// read-out with its name, the named colours, the palette pages behind tabs,
// and "Left", "Ok" and "Right" to hand the colour to a tool colour.
class Color_Editor {
public:
    static constexpr int client_width = 600;
    static constexpr int client_height = 312;
    static constexpr int palette_cell = 18;
    static constexpr int swatch_cell = 18;

    Color_Editor();
    ~Color_Editor();
    Color_Editor(const Color_Editor&) = delete;
    Color_Editor& operator=(const Color_Editor&) = delete;

    // The modal loop; may change the palette and the tool colours.
    void run(Color start);

    Color shown_color() const { return shown; }
    Color edited_color() const { return widget->color(); }
    int page() const { return shown_page; }
    const Pane& frame_pane() const { return *frame; }
    Selected_Color_Area& editing_widget() { return *widget; }
    Color_Variations& variations_pane() { return *variations; }
    Rectangle palette_cell_area(int i) const;
    Rectangle swatch_area(int i) const;
    Rectangle tab_area(int page) const;
    // 0 "Left", 1 "Ok", 2 "Right".
    Rectangle button_area(int which) const { return buttons[which]->area; }
    const std::vector<Named_Color>& entries() const { return named; }

private:
    void draw();
    void draw_readout();
    void hover(int x, int y);
    // True when the press closes the dialog.
    bool press(int button, int x, int y);
    int palette_cell_at(int x, int y) const;
    int swatch_at(int x, int y) const;
    static void paint(void* self);
    static Backdrop::Area area(const void* self);

    std::unique_ptr<Pane> frame;
    std::unique_ptr<Selected_Color_Area> widget;
    std::unique_ptr<Color_Variations> variations;
    std::unique_ptr<Pane> data;
    std::unique_ptr<Pane> database;
    std::unique_ptr<Button_Dialog_Item> buttons[3];
    std::vector<std::unique_ptr<Texture>> plain_tabs;
    std::vector<std::unique_ptr<Texture>> selected_tabs;
    std::vector<Rectangle> tabs;
    std::vector<Named_Color> named;
    SDL_Point row_origin{};
    int row_cells = 0;
    int shown_page = 0;
    Color shown;
    bool ctrl_held = false;
    bool rebuild = false;
};
