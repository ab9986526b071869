#include "canvas.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace {
std::uint8_t clamp_byte(int v) { return static_cast<std::uint8_t>(std::clamp(v, 0, 255)); }
}  // namespace

Rgb mix(Rgb a, Rgb b, int percent_b)
{
    auto m = [percent_b](int x, int y) { return clamp_byte((x * (100 - percent_b) + y * percent_b + 50) / 100); };
    return {m(a.r, b.r), m(a.g, b.g), m(a.b, b.b)};
}

Rgb lighter(Rgb c, int amount) { return {clamp_byte(c.r + amount), clamp_byte(c.g + amount), clamp_byte(c.b + amount)}; }
Rgb darker(Rgb c, int amount) { return lighter(c, -amount); }

Canvas::Canvas(int width, int height, Rgb fill)
    : width_(width), height_(height), pixels_(static_cast<std::size_t>(width * height), fill)
{
}

void Canvas::set(int x, int y, Rgb c)
{
    if (x >= 0 && y >= 0 && x < width_ && y < height_)
        pixels_[static_cast<std::size_t>(y * width_ + x)] = c;
}

Rgb Canvas::get(int x, int y) const
{
    if (x >= 0 && y >= 0 && x < width_ && y < height_)
        return pixels_[static_cast<std::size_t>(y * width_ + x)];
    return magenta;
}

bool Canvas::write_bmp(const std::string& path) const
{
    const int row_bytes = (width_ * 3 + 3) / 4 * 4;
    const std::uint32_t image_bytes = static_cast<std::uint32_t>(row_bytes * height_);
    std::vector<std::uint8_t> out;
    auto u16 = [&out](std::uint32_t v) { out.push_back(v & 0xFF); out.push_back((v >> 8) & 0xFF); };
    auto u32 = [&u16](std::uint32_t v) { u16(v & 0xFFFF); u16(v >> 16); };
    // File header, then the 40-byte info header: BI_RGB, 24 bits, no palette.
    out.push_back('B');
    out.push_back('M');
    u32(14 + 40 + image_bytes);
    u32(0);
    u32(14 + 40);
    u32(40);
    u32(static_cast<std::uint32_t>(width_));
    u32(static_cast<std::uint32_t>(height_));  // positive height: bottom-up rows
    u16(1);
    u16(24);
    u32(0);
    u32(image_bytes);
    u32(2835);  // 72 dpi
    u32(2835);
    u32(0);
    u32(0);
    for (int y = height_ - 1; y >= 0; --y) {
        for (int x = 0; x < width_; ++x) {
            const Rgb c = get(x, y);
            out.push_back(c.b);
            out.push_back(c.g);
            out.push_back(c.r);
        }
        for (int pad = width_ * 3; pad < row_bytes; ++pad)
            out.push_back(0);
    }
    std::FILE* f = std::fopen(path.c_str(), "wb");
    if (!f)
        return false;
    const bool ok = std::fwrite(out.data(), 1, out.size(), f) == out.size();
    return std::fclose(f) == 0 && ok;
}

void Area::set(int x, int y, Rgb c)
{
    if (x >= 0 && y >= 0 && x < r_.w && y < r_.h)
        canvas_.set(r_.x + x, r_.y + y, c);
}

Rgb Area::get(int x, int y) const
{
    if (x >= 0 && y >= 0 && x < r_.w && y < r_.h)
        return canvas_.get(r_.x + x, r_.y + y);
    return magenta;
}

void Area::fill(int x, int y, int w, int h, Rgb c)
{
    for (int j = y; j < y + h; ++j)
        for (int i = x; i < x + w; ++i)
            set(i, j, c);
}

void Area::frame(int x, int y, int w, int h, Rgb c)
{
    fill(x, y, w, 1, c);
    fill(x, y + h - 1, w, 1, c);
    fill(x, y, 1, h, c);
    fill(x + w - 1, y, 1, h, c);
}

void Area::line(int x0, int y0, int x1, int y1, Rgb c)
{
    const int dx = std::abs(x1 - x0), sx = x0 < x1 ? 1 : -1;
    const int dy = -std::abs(y1 - y0), sy = y0 < y1 ? 1 : -1;
    int err = dx + dy;
    for (;;) {
        set(x0, y0, c);
        if (x0 == x1 && y0 == y1)
            break;
        const int e2 = 2 * err;
        if (e2 >= dy) {
            err += dy;
            x0 += sx;
        }
        if (e2 <= dx) {
            err += dx;
            y0 += sy;
        }
    }
}

void Area::disc(double cx, double cy, double radius, Rgb c) { ring(cx, cy, -1.0, radius, c); }

void Area::ring(double cx, double cy, double inner, double outer, Rgb c)
{
    for (int y = 0; y < r_.h; ++y)
        for (int x = 0; x < r_.w; ++x) {
            const double d = std::hypot(x + 0.5 - cx, y + 0.5 - cy);
            if (d <= outer && d > inner)
                set(x, y, c);
        }
}

void Area::bevel(int x, int y, int w, int h, Rgb light, Rgb dark)
{
    fill(x, y, w - 1, 1, light);
    fill(x, y, 1, h - 1, light);
    fill(x + 1, y + h - 1, w - 1, 1, dark);
    fill(x + w - 1, y + 1, 1, h - 1, dark);
}

void Area::art(int x, int y, const char* const* rows, int row_count)
{
    for (int j = 0; j < row_count; ++j)
        for (int i = 0; rows[j][i] != '\0'; ++i) {
            Rgb c;
            if (pixel_art_colour(rows[j][i], c))
                set(x + i, y + j, c);
        }
}

void Area::recolour(Rgb from, Rgb to)
{
    for (int y = 0; y < r_.h; ++y)
        for (int x = 0; x < r_.w; ++x)
            if (get(x, y) == from)
                set(x, y, to);
}

bool pixel_art_colour(char key, Rgb& out)
{
    switch (key) {
    case 'k': out = {24, 24, 24}; return true;       // outline black
    case 'w': out = {255, 255, 255}; return true;
    case 'l': out = {214, 214, 214}; return true;    // light grey
    case 's': out = {160, 160, 168}; return true;    // steel
    case 'd': out = {96, 96, 104}; return true;      // dark grey
    case 'y': out = {250, 206, 48}; return true;     // yellow
    case 'o': out = {232, 128, 32}; return true;     // orange
    case 'r': out = {210, 40, 40}; return true;      // red
    case 'p': out = {244, 150, 160}; return true;    // pink
    case 'n': out = {150, 96, 48}; return true;      // brown
    case 'N': out = {96, 58, 28}; return true;       // dark brown
    case 'g': out = {60, 170, 70}; return true;      // green
    case 'G': out = {30, 100, 40}; return true;      // dark green
    case 'b': out = {50, 100, 220}; return true;     // blue
    case 'B': out = {24, 50, 140}; return true;      // dark blue
    case 'c': out = {120, 210, 240}; return true;    // cyan
    case 'v': out = {150, 80, 200}; return true;     // violet
    case 'm': out = magenta; return true;            // explicitly transparent
    default: return false;
    }
}
