// The pixel sheet that make_pool paints, and the clipped drawing area through
// which every sprite is painted so that no sprite can spill into a neighbour.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct Rgb {
    std::uint8_t r = 0, g = 0, b = 0;
    bool operator==(const Rgb&) const = default;
};

// The colour key of the sheet: every pixel of this colour is transparent.
constexpr Rgb magenta{255, 0, 255};

Rgb mix(Rgb a, Rgb b, int percent_b);
Rgb lighter(Rgb c, int amount);
Rgb darker(Rgb c, int amount);

class Canvas {
public:
    Canvas(int width, int height, Rgb fill);
    int width() const { return width_; }
    int height() const { return height_; }
    void set(int x, int y, Rgb c);
    Rgb get(int x, int y) const;
    // 24-bit uncompressed BMP, bottom-up; the bytes depend only on the pixels.
    bool write_bmp(const std::string& path) const;

private:
    int width_, height_;
    std::vector<Rgb> pixels_;
};

struct Rect {
    int x = 0, y = 0, w = 0, h = 0;
};

// A window onto one rectangle of the canvas; coordinates are relative to its
// top-left corner and everything outside the rectangle is silently clipped.
class Area {
public:
    Area(Canvas& canvas, Rect r) : canvas_(canvas), r_(r) {}
    int w() const { return r_.w; }
    int h() const { return r_.h; }
    void set(int x, int y, Rgb c);
    Rgb get(int x, int y) const;
    void fill(int x, int y, int w, int h, Rgb c);
    void fill_all(Rgb c) { fill(0, 0, r_.w, r_.h, c); }
    void frame(int x, int y, int w, int h, Rgb c);
    void line(int x0, int y0, int x1, int y1, Rgb c);
    // Pixels whose centres lie within radius of (cx, cy); ring: between inner and outer.
    void disc(double cx, double cy, double radius, Rgb c);
    void ring(double cx, double cy, double inner, double outer, Rgb c);
    // One-pixel bevel: light top/left and dark bottom/right (swapped when sunken).
    void bevel(int x, int y, int w, int h, Rgb light, Rgb dark);
    // Pixel art: one string per row, each character looked up in the legend
    // of pixel_art_colour(); ' ' and '.' leave the pixel as it is.
    void art(int x, int y, const char* const* rows, int row_count);
    // Replace every pixel of colour from by colour to.
    void recolour(Rgb from, Rgb to);
    // Fill the pixels for which inside(x, y) holds, and draw a one-pixel edge
    // on the pixels just outside them (left, right, above or below).
    template <class Inside>
    void shape(Inside inside, Rgb fill_colour, Rgb edge_colour)
    {
        shape_coloured([&](int x, int y, Rgb& c) {
            c = fill_colour;
            return inside(x, y);
        }, edge_colour);
    }
    // The same with a colour per pixel: colour_at(x, y, colour) says whether
    // the pixel is inside and, if so, sets its colour.
    template <class Colour_At>
    void shape_coloured(Colour_At colour_at, Rgb edge_colour)
    {
        auto inside = [&](int x, int y) {
            Rgb unused;
            return colour_at(x, y, unused);
        };
        for (int y = 0; y < r_.h; ++y)
            for (int x = 0; x < r_.w; ++x) {
                Rgb c;
                if (colour_at(x, y, c))
                    set(x, y, c);
                else if (inside(x - 1, y) || inside(x + 1, y) || inside(x, y - 1) || inside(x, y + 1))
                    set(x, y, edge_colour);
            }
    }

private:
    Canvas& canvas_;
    Rect r_;
};

// The shared legend of the pixel-art strings.
bool pixel_art_colour(char key, Rgb& out);
