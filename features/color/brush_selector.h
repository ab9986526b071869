#pragma once

#include <memory>
#include <vector>

#include "platform/texture.h"
#include "model/paint/brushes.h"
#include "ui/pane.h"

// The built-in brushes and the "Shape" and "Size" panes they are picked
// in: seven shape buttons and six size buttons of 18 x 18 pixels. Picking a
// shape keeps the size and picking a size keeps the shape.
class Brush_Selector {
public:
    static constexpr int button_size = 18;
    static constexpr int pane_gap = 4;

    Brush_Selector();
    ~Brush_Selector();
    Brush_Selector(const Brush_Selector&) = delete;
    Brush_Selector& operator=(const Brush_Selector&) = delete;

    int shape() const { return current_shape; }
    int size() const { return size_index + 1; }
    // The mask in use: opaque white where set.
    const Brush& current() const { return brushes.get(current_shape, size_index + 1); }
    // The mask in the tool colour it was last recoloured with.
    const Tile& colored() const { return *tinted; }
    void set_brush(int shape, int size);
    void select_size(int size) { set_brush(current_shape, size); }
    // Recolours the current brush; brush mode 6 (the stamp) keeps its own colours.
    void set_color(Color c, int brush_mode);

    // Places both panes with the "Shape" pane's corner at (x, y) and returns
    // the first free y below the "Size" pane.
    int place(int x, int y);
    void draw();
    bool click_shape(int x, int y);
    bool click_size(int x, int y);
    const Pane& shape_pane() const { return *shapes; }
    const Pane& size_pane() const { return *sizes; }
    Rectangle shape_button(int shape) const;
    Rectangle size_button(int size) const;

    // Draws a brush with 2 x 2 screen pixels per set pixel.
    static void draw_brush(const Brush& b, int left, int top, Color c);

private:
    void recolor();
    void build_faces();

    Built_In_Brushes brushes;
    int current_shape = 0;
    int size_index = 0;
    Color tint{255, 255, 255, 255};
    int tint_mode = 0;
    std::unique_ptr<Tile> tinted;
    std::unique_ptr<Pane> shapes;
    std::unique_ptr<Pane> sizes;
    // The faces of the shape buttons then the size buttons, side by side,
    // with their brushes: they depend only on the current shape and size.
    std::unique_ptr<Texture> faces;
    std::vector<Color> face_pixels;
    int faces_shape = -1;
    int faces_size = -1;
};
