#pragma once

#include <SDL3/SDL.h>

#include <array>
#include <memory>

#include "features/color/brush_selector.h"
#include "features/color/color_tools.h"
#include "model/tileset/tool_pages.h"
#include "ui/pane.h"

class Buffer_Pane;
class Canvas_View;
class Color_Readout;
class Location_Info;
class Number_Info;
class Brush_Pad_Pane;
class Option_Pane;
class Tick_Pane;

// The options of the tool in use, at the right of the window: one page per
// tool with its choices, ticks and read-outs, the brush selector for tools
// that paint with a brush, the brush pad, and the tool colour panes. Tools
// read their settings here and the shape tools write their read-outs here.
class Tool_Options_Pane : public Pane {
public:
    static constexpr int width = 412;
    static constexpr int height = 576;
    static constexpr int row_width = 202;
    static constexpr int row_height = 26;
    static constexpr int row_gap = 4;
    static constexpr int pad_offset = 207;
    static constexpr int pad_width = 202;
    static constexpr int pad_height = 531;
    // The colour and handles stack sits at the bottom of the rows' column;
    // the selector, the palette and the "Adjust HSV" button sit in the
    // window's left column, below the preview and the undo meter.
    static constexpr SDL_Point mixers_corner{28, 301};

    Tool_Options_Pane(int x, int y);
    ~Tool_Options_Pane() override;

    // Makes a tool current; a different tool becomes the previous one first.
    void set_tool(int tool);
    void show_page(int page);
    int tool() const { return current_tool; }
    int previous_tool() const { return last_tool; }
    int page() const { return current_page; }

    void draw() override;
    void hover(int x, int y);
    // Offers a press in the documented order; true when something took it.
    bool click(int button, int x, int y);
    // The command of a button of the pane's own (the tile colour button), or -1.
    int command_at(int x, int y) const;
    // The brush under the pointer on the canvas.
    void draw_overlays(const Canvas_View& canvas, float x, float y);

    // Colours and brush.
    Color tool_color(int index) const { return colors->color(index); }
    Color_Tools& color_tools() { return *colors; }
    Brush_Selector& brushes() { return *brush_selector; }
    const Brush& brush() const { return brush_selector->current(); }
    const Tile& colored_brush() const { return brush_selector->colored(); }
    int brush_size() const { return brush_selector->size(); }
    // The brush's pixel (hot, hot) lies on the cell under the pointer:
    // centred, rounding up and left, as the strokes stamp it.
    int brush_hotspot() const { return (brush_selector->size() - 1) / 2; }
    // The brush pad and the temporary brush beside the pages.
    Brush_Pad_Pane& brush_pad() { return *pad; }
    // What the stamp brush draws with: the temporary brush, else the pad's
    // selected brush, else the built-in brush; a negative hotspot is the middle.
    const Tile& stamp_image() const;
    // The stamp's outline under the pointer on the canvas.
    void draw_stamp_outline(const Canvas_View& canvas, float x, float y) const;
    SDL_Point stamp_hotspot() const;
    // Size 1 to 6 of the current shape, kept in the current tool's slot.
    void select_brush_size(int size);
    void select_brush(int shape, int size);

    // The choices and ticks the tools read.
    int right_button_mode() const;  // 0 colour, 1 history, 2 dropper
    int colorize_type() const;      // 0 linear, 1 luma
    int rectangle_type() const;     // 0 outline, 1 filled, 2 filled and outlined
    int ellipse_type() const;
    int lightness_mode() const;     // 0 linear, 1 perception
    int button_order() const;       // 0 left lightens, 1 left darkens
    int speed() const;              // 0 extremely slow .. 6 extremely fast
    bool size_compensation() const;
    bool select_previous_tool() const;
    int selection_mode() const;     // 0 standard, 1 persistent, 2 fixed
    int stamp_mode() const;         // 0 brush, 1 pattern
    void set_rectangle_type(int type);
    void set_selection_mode(int mode);
    void set_ellipse_type(int type);

    // The read-outs the tools write while dragging.
    void set_location(int x, int y);
    void set_size(int w, int h);
    void set_radius(int rx, int ry);
    void set_length(int n);
    void set_degrees(int n);
    void set_offset(int x, int y);
    // The dropper's colour under the pointer.
    void set_color_readout(Color c);

    Pane& row(int id) { return *rows[size_t(id)]; }
    // The copy buffer's pane, shown on the selection page.
    Buffer_Pane& buffer_pane() { return *buffer; }
    // The left tool colour shown on the selector and selection pages.
    const Pane& fill_color_pane() const { return *fill_color; }
    const Rectangle& adjust_button() const { return adjust_area; }

private:
    void layout_page();
    void tool_color_changed(int index, Color c);
    void store_brush_slot();
    int choice(int id) const;
    bool click_row(int id, int x, int y);

    int current_tool = 0;
    int last_tool = 0;
    int current_page = 0;
    SDL_Point pointer{-1, -1};
    std::unique_ptr<Color_Tools> colors;
    std::unique_ptr<Brush_Selector> brush_selector;
    std::array<std::unique_ptr<Pane>, tool_pages::row_count> rows;
    std::unique_ptr<Brush_Pad_Pane> pad;
    std::unique_ptr<Buffer_Pane> buffer;
    // The left tool colour, which "Fill" uses, on the pages without the colour panes.
    static constexpr int fill_color_width = 120;
    static constexpr int fill_color_height = 34;
    std::unique_ptr<Pane> fill_color;
    Rectangle adjust_area{};
    struct Slot {
        int shape = 0;
        int size = 1;
    };
    std::array<Slot, tool_pages::slot_count> slots{};
    Location_Info* location_row = nullptr;
    Location_Info* size_row = nullptr;
    Location_Info* radius_row = nullptr;
    Location_Info* offset_row = nullptr;
    Number_Info* length_row = nullptr;
    Number_Info* degrees_row = nullptr;
    Color_Readout* color_row = nullptr;
};

extern Tool_Options_Pane* g_tool_options;
