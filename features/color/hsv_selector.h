#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/texture.h"
#include "model/color/hue_square.h"
#include "ui/pane.h"

// A square from white and the hue colour down to black, and a hue strip
// beside it. Pressing the strip picks the hue colour; pressing the square
// picks a tool colour. Either starts a drag that runs until the release.
class HSV_Selector : public Pane {
public:
    static constexpr int body_height = 140;

    HSV_Selector(int x, int y);
    ~HSV_Selector() override;

    void draw() override;
    void set_hue_color(Color h);
    Color hue_color() const { return right_edge[0]; }
    // True when the press lay in the square or the strip (and the drag ran).
    bool mouse_down(int button, int x, int y);

    Color square_pixel(int x, int y) const { return square[size_t(y * hue_square::side + x)]; }
    Color strip_pixel(int x, int y) const { return strip[size_t(y * hue_square::strip_width + x)]; }
    const Rectangle& square_area() const { return square_rect; }
    const Rectangle& strip_area() const { return strip_rect; }

    // A square pick: the tool colour of the pressed button becomes the colour.
    std::function<void(int button, Color c)> picked;

private:
    void pick(bool in_strip, int button, int x, int y);
    static void paint_crosshairs(void* self);

    Rectangle square_rect;
    Rectangle strip_rect;
    std::vector<Color> left_edge;
    std::vector<Color> right_edge;
    std::vector<Color> square;
    std::vector<Color> strip;
    std::unique_ptr<Texture> square_texture;
    std::unique_ptr<Texture> strip_texture;
    SDL_Point cross{};
};
