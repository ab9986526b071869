// The 24 x 24 tool icons. Each tool has a plain button (raised, grey) and a
// selected one (sunken, on a warm highlight); the symbol is the same on both.
#include <cmath>
#include <numbers>

#include "sprites.h"

namespace {

constexpr Rgb ink{24, 24, 24};
constexpr Rgb white{255, 255, 255};
constexpr Rgb plain_face{200, 200, 200};
constexpr Rgb selected_face{255, 226, 130};
constexpr Rgb shadow{90, 90, 90};
constexpr Rgb blue{50, 100, 220};
constexpr Rgb steel{168, 168, 176};
constexpr Rgb yellow{250, 206, 48};

// Tools held diagonally, tip at the lower left: p runs along the tool (tip at
// p = -15, far end at p = 15), q across it (0 on the axis).
template <class Colour_At>
void diagonal_tool(Area& a, Colour_At colour_at)
{
    a.shape_coloured([&](int x, int y, Rgb& c) {
        if (x < 2 || y < 2 || x > 21 || y > 21)
            return false;
        return colour_at(x - y, x + y - 23, c);
    }, ink);
}

void pen(Area& a)
{
    diagonal_tool(a, [](int p, int q, Rgb& c) {
        const int across = std::abs(q);
        if (p < -15 || p > 15)
            return false;
        if (p <= -8) {  // sharpened wood with the lead at its point
            if (across > (p + 15) / 2)
                return false;
            c = p <= -12 ? Rgb{70, 70, 70} : Rgb{236, 200, 150};
            return true;
        }
        if (across > 3)
            return false;
        if (p <= 8)  // the painted body, lit from the upper left
            c = q <= -2 ? Rgb{255, 234, 120} : q >= 2 ? Rgb{214, 150, 24} : yellow;
        else if (p <= 10)  // metal band
            c = across == 1 ? Rgb{220, 220, 228} : steel;
        else  // eraser, its corners rounded off
            c = {240, 140, 150};
        return !(p == 15 && across == 3);
    });
}

void dropper(Area& a)
{
    const Rgb glass{214, 236, 246};
    diagonal_tool(a, [&](int p, int q, Rgb& c) {
        const int across = std::abs(q);
        if (p < -15 || p > 15)
            return false;
        if (p <= -6) {  // thin nozzle, paint at its end
            if (across > 1)
                return false;
            c = p <= -11 ? blue : glass;
            return true;
        }
        if (p <= 4) {  // barrel, half full
            if (across > 2)
                return false;
            c = q == -2 ? white : p <= -1 ? blue : glass;
            return true;
        }
        if (p <= 6) {
            c = {80, 80, 88};
            return across <= 4;
        }
        if (across > 3 - std::max(0, p - 12))
            return false;
        c = q <= -2 ? Rgb{240, 110, 110} : Rgb{196, 36, 36};  // rubber bulb
        return true;
    });
}

void lighten_darken(Area& a)
{
    // A disc half white, half black: a plus on the light half, a minus on the dark.
    a.disc(12, 12, 8.6, ink);
    for (int y = 0; y < 24; ++y)
        for (int x = 0; x < 12; ++x)
            if (std::hypot(x + 0.5 - 12, y + 0.5 - 12) <= 7.6)
                a.set(x, y, white);
    a.fill(5, 11, 5, 1, ink);
    a.fill(7, 9, 1, 5, ink);
    a.fill(14, 11, 5, 1, white);
}

void flood_fill(Area& a)
{
    // A bucket with a handle, paint brimming over its right rim into a puddle.
    a.ring(11.5, 9.5, 5.6, 6.8, ink);
    a.fill(4, 9, 16, 15, plain_face);  // keep only the upper half of the handle ring
    a.shape_coloured([](int x, int y, Rgb& c) {
        if (y < 9 || y > 19)
            return false;
        const int inset = (y - 9) / 4;
        if (x < 5 + inset || x > 17 - inset)
            return false;
        c = y <= 10 ? blue : x >= 14 - inset ? Rgb{120, 120, 130} : steel;
        return true;
    }, ink);
    a.shape_coloured([](int x, int y, Rgb& c) {
        c = blue;
        return (x == 19 && y >= 9 && y <= 16) || (x == 20 && y >= 13 && y <= 15) || (y == 20 && x >= 15 && x <= 20);
    }, ink);
}

void straight_line(Area& a)
{
    a.line(5, 18, 18, 5, ink);
    a.line(6, 18, 18, 6, ink);
    a.fill(4, 18, 2, 2, ink);
    a.fill(18, 4, 2, 2, ink);
}

void rectangle(Area& a)
{
    a.frame(4, 6, 16, 12, ink);
    a.frame(5, 7, 14, 10, ink);
}

void circle(Area& a) { a.ring(12, 12, 6.0, 8.0, ink); }

void filled_rectangle(Area& a)
{
    a.fill(4, 6, 16, 12, blue);
    a.frame(4, 6, 16, 12, ink);
}

void filled_circle(Area& a)
{
    a.disc(12, 12, 8.0, ink);
    a.disc(12, 12, 7.0, blue);
}

void colorize(Area& a)
{
    // A rainbow in the corner and a brush with a red tip: recolouring.
    const Rgb bands[] = {{220, 40, 40}, {240, 150, 30}, {240, 220, 40}, {60, 170, 70}, {50, 100, 220}};
    for (int i = 0; i < 5; ++i)
        a.ring(2, 2, 4.0 + 1.6 * i, 5.6 + 1.6 * i, bands[i]);
    diagonal_tool(a, [](int p, int q, Rgb& c) {
        const int across = std::abs(q);
        if (p < -15 || p > 15)
            return false;
        if (p <= -6) {
            c = {220, 40, 40};
            return across <= std::min(2, (p + 16) / 2);
        }
        if (p <= -2) {
            c = steel;
            return across <= 2;
        }
        c = {150, 96, 48};
        return across <= 1;
    });
}

void smudge(Area& a)
{
    // A blob of paint dragged to the left, its streaks fading into the button.
    for (int y = 8; y <= 16; y += 2)
        for (int x = 3; x <= 14; ++x) {
            const int reach = 3 + std::abs(y - 12);
            if (x >= reach)
                a.set(x, y, mix(plain_face, blue, 100 - (14 - x) * 7));
        }
    a.disc(15.5, 12.5, 4.8, ink);
    a.disc(15.5, 12.5, 3.8, blue);
    a.set(14, 10, {150, 180, 250});
}

void mover(Area& a)
{
    a.fill(5, 11, 14, 2, ink);
    a.fill(11, 5, 2, 14, ink);
    for (int i = 0; i < 4; ++i) {
        a.fill(2 + i, 11 - i, 1, 2 + 2 * i, ink);
        a.fill(21 - i, 11 - i, 1, 2 + 2 * i, ink);
        a.fill(11 - i, 2 + i, 2 + 2 * i, 1, ink);
        a.fill(11 - i, 21 - i, 2 + 2 * i, 1, ink);
    }
}

// Marching ants: black and white dashes of two pixels along a path.
Rgb ant(int step) { return (step / 2) % 2 == 0 ? ink : white; }

void dashed_frame(Area& a, int x, int y, int w, int h)
{
    int step = 0;
    for (int i = 0; i < w - 1; ++i)
        a.set(x + i, y, ant(step++));
    for (int i = 0; i < h - 1; ++i)
        a.set(x + w - 1, y + i, ant(step++));
    for (int i = 0; i < w - 1; ++i)
        a.set(x + w - 1 - i, y + h - 1, ant(step++));
    for (int i = 0; i < h - 1; ++i)
        a.set(x, y + h - 1 - i, ant(step++));
}

// An elliptic ring with dashes by angle.
void dashed_ellipse(Area& a, double cx, double cy, double rx, double ry, int dashes)
{
    for (int y = 0; y < 24; ++y)
        for (int x = 0; x < 24; ++x) {
            const double dx = (x + 0.5 - cx) / rx, dy = (y + 0.5 - cy) / ry;
            const double d = std::hypot(dx, dy);
            const double thickness = 1.15 / std::min(rx, ry);
            if (d > 1.0 || d <= 1.0 - thickness * 1.2)
                continue;
            const double turn = (std::atan2(dy, dx) + std::numbers::pi) / (2 * std::numbers::pi);
            a.set(x, y, static_cast<int>(turn * dashes) % 2 == 0 ? ink : white);
        }
}

void rectangle_selector(Area& a)
{
    dashed_frame(a, 4, 6, 16, 12);
    dashed_frame(a, 5, 7, 14, 10);
}

void circle_selector(Area& a) { dashed_ellipse(a, 12, 12, 8.2, 8.2, 16); }

void pen_selector(Area& a)
{
    // A lasso: a dashed loop with its rope hanging down.
    dashed_ellipse(a, 12.5, 9.5, 9, 6.2, 14);
    a.line(7, 15, 6, 17, {150, 96, 48});
    a.line(6, 17, 8, 19, {150, 96, 48});
    a.line(8, 19, 7, 21, {150, 96, 48});
    a.line(8, 15, 7, 17, {96, 58, 28});
}

void magic_wand(Area& a)
{
    diagonal_tool(a, [](int p, int q, Rgb& c) {
        if (p < -15 || p > 5 || std::abs(q) > 1)
            return false;
        c = p >= 1 ? white : Rgb{40, 40, 40};
        return true;
    });
    // Sparkles around the tip.
    auto sparkle = [&a](int x, int y, int arm) {
        a.fill(x - arm, y, 2 * arm + 1, 1, {240, 180, 0});
        a.fill(x, y - arm, 1, 2 * arm + 1, {240, 180, 0});
        a.set(x, y, white);
    };
    sparkle(18, 5, 3);
    sparkle(19, 13, 2);
    sparkle(11, 4, 2);
}

void clone_brush(Area& a)
{
    // A rubber stamp: knob, neck, block and red rubber.
    a.shape([](int x, int y) {
        const bool knob = std::hypot(x + 0.5 - 12, y + 0.5 - 6) <= 3.6;
        const bool neck = x >= 10 && x <= 13 && y >= 8 && y <= 11;
        const bool block = x >= 5 && x <= 18 && y >= 12 && y <= 16;
        return knob || neck || block;
    }, {150, 96, 48}, ink);
    a.fill(10, 4, 2, 2, {206, 150, 100});
    a.fill(5, 17, 14, 2, {210, 40, 40});
    a.fill(4, 17, 1, 2, ink);
    a.fill(19, 17, 1, 2, ink);
    a.fill(4, 19, 16, 1, ink);
}

// The seam: yellow and black dashes across the middle of the tile, with
// arrows for the direction in which the tile is offset.
void seam(Area& a, bool horizontal_offset)
{
    auto put = [&a, horizontal_offset](int along, int across, Rgb c) {
        if (horizontal_offset)
            a.set(across, along, c);
        else
            a.set(along, across, c);
    };
    for (int along = 2; along <= 21; ++along)
        for (int across = 11; across <= 12; ++across)
            put(along, across, (along / 2) % 2 == 0 ? Rgb{255, 214, 0} : ink);
    // Arrows pointing away from the seam on both sides.
    for (int across = 3; across <= 8; ++across) {
        put(11, across, ink);
        put(12, across, ink);
        put(11, 23 - across, ink);
        put(12, 23 - across, ink);
    }
    for (int i = 0; i < 4; ++i)
        for (int j = 11 - i; j <= 12 + i; ++j) {
            put(j, 2 + i, ink);
            put(j, 21 - i, ink);
        }
}

void horizontal_seam(Area& a) { seam(a, true); }
void vertical_seam(Area& a) { seam(a, false); }

void selection_actions(Area& a)
{
    // A selection and a clipboard: what can be done with the selected area.
    dashed_frame(a, 3, 3, 13, 10);
    a.fill(10, 9, 11, 13, {150, 96, 48});
    a.frame(10, 9, 11, 13, ink);
    a.fill(12, 12, 7, 8, white);
    a.fill(13, 8, 5, 3, steel);
    a.frame(13, 8, 5, 3, ink);
    for (int y = 14; y <= 18; y += 2)
        a.fill(13, y, 5, 1, {96, 96, 104});
}

void rotate(Area& a)
{
    // A clockwise arrow: three quarters of a ring with its head at the top.
    const Rgb arrow{40, 80, 180};
    for (int y = 0; y < 24; ++y)
        for (int x = 0; x < 24; ++x) {
            const double d = std::hypot(x + 0.5 - 12, y + 0.5 - 12);
            if (d > 5.2 && d <= 7.6 && !(x >= 12 && y < 12))
                a.set(x, y, arrow);
        }
    for (int i = 0; i < 5; ++i)
        a.fill(17 - i, 6 - i, 1, 2 * i + 1, arrow);
}

struct Icon {
    const char* plain;
    const char* selected;
    void (*paint)(Area&);
};

const Icon icons[] = {
    {"icon pen", "icon pen selected", pen},
    {"icon dropper", "icon dropper selected", dropper},
    {"icon lighten darken", "icon lighten darken selected", lighten_darken},
    {"icon flood fill", "icon flood fill selected", flood_fill},
    {"icon line", "icon line selected", straight_line},
    {"icon rectangle", "icon rectangle selected", rectangle},
    {"icon circle", "icon circle selected", circle},
    {"icon colorize", "icon colorize selected", colorize},
    {"icon smudge", "icon smudge selected", smudge},
    {"icon mover", "icon mover selected", mover},
    {"icon rectangle selector", "icon rectangle selector selected", rectangle_selector},
    {"icon pen selector", "icon pen selector selected", pen_selector},
    {"icon magic wand", "icon magic wand selected", magic_wand},
    {"icon clone brush", "icon clone brush selected", clone_brush},
    {"icon horizontal seam", "icon horizontal seam selected", horizontal_seam},
    {"icon vertical seam", "icon vertical seam selected", vertical_seam},
    {"icon filled rectangle", "icon filled rectangle selected", filled_rectangle},
    {"icon filled circle", "icon filled circle selected", filled_circle},
    {"icon circle selector", "icon circle selector selected", circle_selector},
    {"icon sel actions", "icon sel actions selected", selection_actions},
    {"icon rotate", "icon rotate selected", rotate},
};

}  // namespace

void paint_tool_icons(Canvas& canvas)
{
    for (const Icon& icon : icons) {
        // The symbol is painted on the plain face; the selected button is the
        // same picture with the face recoloured, then given a sunken bevel.
        Area plain = sprite_area(canvas, icon.plain);
        plain.fill_all(plain_face);
        icon.paint(plain);
        Area selected = sprite_area(canvas, icon.selected);
        selected.fill_all(plain_face);
        icon.paint(selected);
        selected.recolour(plain_face, selected_face);
        plain.bevel(0, 0, 24, 24, white, shadow);
        plain.bevel(1, 1, 22, 22, {232, 232, 232}, {148, 148, 148});
        selected.bevel(0, 0, 24, 24, shadow, white);
        selected.bevel(1, 1, 22, 22, {200, 160, 60}, selected_face);
    }
}
