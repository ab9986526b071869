// Navigation buttons, small dialog buttons, colour handles, markers, pane
// header caps and the other small pieces of the interface.
#include <cmath>
#include <string>

#include "sprites.h"

namespace {

constexpr Rgb ink{24, 24, 24};
constexpr Rgb white{255, 255, 255};
constexpr Rgb face{200, 200, 200};
constexpr Rgb pressed_face{172, 172, 172};
constexpr Rgb shadow{90, 90, 90};
constexpr Rgb half_light{232, 232, 232};
constexpr Rgb half_shadow{148, 148, 148};

// Buttons are opaque: a face with a two-pixel bevel, raised or sunken.
void raised_button(Area& a, Rgb button_face)
{
    a.fill_all(button_face);
    a.bevel(0, 0, a.w(), a.h(), white, shadow);
    a.bevel(1, 1, a.w() - 2, a.h() - 2, half_light, half_shadow);
}

void sunken_button(Area& a, Rgb button_face)
{
    a.fill_all(button_face);
    a.bevel(0, 0, a.w(), a.h(), shadow, white);
    a.bevel(1, 1, a.w() - 2, a.h() - 2, half_shadow, button_face);
}

// 5 x 7 capitals for the lettered handles and buttons.
const char* const* letter(char c)
{
    static const char* const r[] = {"kkkk.", "k...k", "k...k", "kkkk.", "k.k..", "k..k.", "k...k"};
    static const char* const g[] = {".kkk.", "k...k", "k....", "k.kkk", "k...k", "k...k", ".kkkk"};
    static const char* const b[] = {"kkkk.", "k...k", "k...k", "kkkk.", "k...k", "k...k", "kkkk."};
    static const char* const a[] = {".kkk.", "k...k", "k...k", "kkkkk", "k...k", "k...k", "k...k"};
    static const char* const s[] = {".kkkk", "k....", "k....", ".kkk.", "....k", "....k", "kkkk."};
    static const char* const l[] = {"k....", "k....", "k....", "k....", "k....", "k....", "kkkkk"};
    static const char* const v[] = {"k...k", "k...k", "k...k", "k...k", ".k.k.", ".k.k.", "..k.."};
    switch (c) {
    case 'R': return r;
    case 'G': return g;
    case 'B': return b;
    case 'A': return a;
    case 'S': return s;
    case 'L': return l;
    default: return v;
    }
}

void draw_letter(Area& a, int x, int y, char c, Rgb colour)
{
    const char* const* rows = letter(c);
    for (int j = 0; j < 7; ++j)
        for (int i = 0; i < 5; ++i)
            if (rows[j][i] == 'k')
                a.set(x + i, y + j, colour);
}

// Triangle pointing left with its tip at column x, 9 rows tall, centred on row cy.
void triangle_left(Area& a, int x, int cy, Rgb c)
{
    for (int i = 0; i < 5; ++i)
        a.fill(x + i, cy - i, 1, 2 * i + 1, c);
}

void triangle_right(Area& a, int x, int cy, Rgb c)
{
    for (int i = 0; i < 5; ++i)
        a.fill(x - i, cy - i, 1, 2 * i + 1, c);
}

// The symbol of a navigation button: bars and triangles, pointing left for
// the first three buttons and right for the last three.
void nav_symbol(Area& a, int kind, int dx, int dy, Rgb c)
{
    const int cy = 11 + dy;
    switch (kind) {
    case 0:  // rewind: |<<
        a.fill(6 + dx, cy - 4, 2, 9, c);
        triangle_left(a, 8 + dx, cy, c);
        triangle_left(a, 13 + dx, cy, c);
        break;
    case 1:  // previous strip page: <<
        triangle_left(a, 7 + dx, cy, c);
        triangle_left(a, 12 + dx, cy, c);
        break;
    case 2:  // previous tile: <
        triangle_left(a, 9 + dx, cy, c);
        break;
    case 3:  // next tile: >
        triangle_right(a, 14 + dx, cy, c);
        break;
    case 4:  // next strip page: >>
        triangle_right(a, 11 + dx, cy, c);
        triangle_right(a, 16 + dx, cy, c);
        break;
    default:  // forward to the last tile: >>|
        triangle_right(a, 10 + dx, cy, c);
        triangle_right(a, 15 + dx, cy, c);
        a.fill(16 + dx, cy - 4, 2, 9, c);
        break;
    }
}

void paint_navigation(Canvas& canvas)
{
    struct Nav {
        const char* depressed;
        const char* pressed;
        const char* grey;
    };
    const Nav buttons[] = {
        {"rewind depressed", "rewind pressed", "rewind grey"},
        {"strip prev depressed", "strip prev pressed", "strip prev grey"},
        {"prev tile depressed", "prev tile pressed", "prev tile grey"},
        {"next tile depressed", "next tile pressed", "next tile grey"},
        {"strip next depressed", "strip next pressed", "strip next grey"},
        {"strip forward depressed", "strip forward pressed", "forward grey"},
    };
    for (int kind = 0; kind < 6; ++kind) {
        Area up = sprite_area(canvas, buttons[kind].depressed);
        raised_button(up, face);
        nav_symbol(up, kind, 0, 0, ink);
        // Pressed: sunken, darker, the symbol moved one pixel down and right.
        Area down = sprite_area(canvas, buttons[kind].pressed);
        sunken_button(down, pressed_face);
        nav_symbol(down, kind, 1, 1, ink);
        // Unavailable: an engraved grey symbol.
        Area grey = sprite_area(canvas, buttons[kind].grey);
        raised_button(grey, face);
        nav_symbol(grey, kind, 1, 1, white);
        nav_symbol(grey, kind, 0, 0, {150, 150, 150});
    }
    // The box in which the program writes the current tile's number.
    Area id = sprite_area(canvas, "current tile id");
    id.fill_all({240, 240, 228});
    id.bevel(0, 0, id.w(), id.h(), shadow, white);
    id.bevel(1, 1, id.w() - 2, id.h() - 2, half_shadow, {240, 240, 228});
}

// Arrows marking the seam position at the canvas border, pointing inward.
void paint_seam_arrows(Canvas& canvas)
{
    const Rgb yellow{255, 214, 0};
    // The arrow pointing down, in a 12 x 12 square; the others are turned copies.
    auto down = [](int x, int y) {
        if (y >= 1 && y <= 5)
            return x >= 4 && x <= 7;
        if (y >= 5 && y <= 9)
            return std::abs(2 * x + 1 - 12) <= 2 * (9 - y) + 1;
        return false;
    };
    Area d = sprite_area(canvas, "seam arrow down");
    d.shape(down, yellow, ink);
    Area u = sprite_area(canvas, "seam arrow up");
    u.shape([&](int x, int y) { return down(x, 11 - y); }, yellow, ink);
    Area l = sprite_area(canvas, "seam arrow left");
    l.shape([&](int x, int y) { return down(y, 11 - x); }, yellow, ink);
    Area r = sprite_area(canvas, "seam arrow right");
    r.shape([&](int x, int y) { return down(y, x); }, yellow, ink);
}

void paint_pointers(Canvas& canvas)
{
    static const char* const arrow[] = {
        "k..........",
        "kk.........",
        "kwk........",
        "kwwk.......",
        "kwwwk......",
        "kwwwwk.....",
        "kwwwwwk....",
        "kwwwwwwk...",
        "kwwwwwwwk..",
        "kwwwwwwwwk.",
        "kwwwwwkkkkk",
        "kwwkwwk....",
        "kwk.kwwk...",
        "kk..kwwk...",
        "k....kwwk..",
        ".....kkkk..",
    };
    Area a = sprite_area(canvas, "mouse arrow");
    a.art(0, 0, arrow, 16);
    // Crosshairs: black hairs with a white rim, open in the middle.
    Area c = sprite_area(canvas, "crosshairs");
    c.shape([](int x, int y) {
        if (x < 0 || y < 0 || x > 10 || y > 10)
            return false;
        return (y == 5 && (x <= 3 || x >= 7)) || (x == 5 && (y <= 3 || y >= 7));
    }, ink, white);
}

void radio(Area& a, bool checked)
{
    // A white well with a dark rim, lit from the lower right.
    a.disc(7.5, 7.5, 7.3, {64, 64, 64});
    for (int y = 0; y < 15; ++y)
        for (int x = 0; x < 15; ++x) {
            const double d = std::hypot(x + 0.5 - 7.5, y + 0.5 - 7.5);
            if (d > 6.4 && d <= 7.3 && x + y > 15)
                a.set(x, y, {236, 236, 236});
        }
    a.disc(7.5, 7.5, 5.9, {150, 150, 150});
    a.disc(8.0, 8.0, 5.2, white);
    if (checked)
        a.disc(7.5, 7.5, 3.2, ink);
}

void paint_small_buttons(Canvas& canvas)
{
    Area unchecked = sprite_area(canvas, "radiobutton uncheck");
    radio(unchecked, false);
    Area checked = sprite_area(canvas, "radiobutton check");
    radio(checked, true);

    Area more = sprite_area(canvas, "button more");
    raised_button(more, face);
    more.fill(4, 7, 7, 1, ink);
    more.fill(7, 4, 1, 7, ink);
    Area less = sprite_area(canvas, "button less");
    raised_button(less, face);
    less.fill(4, 7, 7, 1, ink);
    Area middle = sprite_area(canvas, "button middle");
    raised_button(middle, face);
    middle.fill(6, 6, 3, 3, ink);

    struct Lettered {
        const char* name;
        char letter;
        Rgb face, ink;
    };
    const Lettered handle_buttons[] = {
        {"handlebutton R", 'R', {214, 56, 56}, white},   {"handlebutton G", 'G', {56, 160, 64}, white},
        {"handlebutton B", 'B', {56, 96, 214}, white},   {"handlebutton A", 'A', {150, 150, 150}, white},
        {"handlebutton S", 'S', {160, 80, 190}, white},  {"handlebutton L", 'L', {236, 226, 140}, ink},
    };
    for (const Lettered& b : handle_buttons) {
        Area a = sprite_area(canvas, b.name);
        raised_button(a, b.face);
        draw_letter(a, 5, 4, b.letter, b.ink);
    }
}

// Colour handles: a tab in the channel's colour with a point at the bottom;
// the "L" versions are the light tints of the same tabs.
void paint_colour_handles(Canvas& canvas)
{
    auto tab = [](int x, int y) {
        if (y >= 1 && y <= 7)
            return x >= 1 && x <= 14;
        if (y >= 8 && y <= 11)
            return std::abs(2 * x + 1 - 16) <= 2 * (12 - y) - 1;
        return false;
    };
    struct Handle {
        const char* name;
        const char* light_name;
        char letter;
        Rgb colour;
    };
    const Handle handles[] = {
        {"color handle r", "color handle r L", 'R', {214, 56, 56}},
        {"color handle g", "color handle g L", 'G', {56, 160, 64}},
        {"color handle b", "color handle b L", 'B', {56, 96, 214}},
        {"color handle s", "color handle s L", 'S', {160, 80, 190}},
        {"color handle v", "color handle v L", 'V', {110, 110, 110}},
    };
    for (const Handle& h : handles) {
        Area a = sprite_area(canvas, h.name);
        a.shape(tab, h.colour, ink);
        draw_letter(a, 6, 1, h.letter, white);
        Area l = sprite_area(canvas, h.light_name);
        l.shape(tab, mix(h.colour, white, 60), ink);
        draw_letter(l, 6, 1, h.letter, ink);
    }
    // The bar: a narrow vertical groove with rounded ends.
    Area bar = sprite_area(canvas, "color handle bar");
    bar.fill(3, 1, 4, bar.h() - 2, {60, 60, 60});
    bar.fill(3, 1, 1, bar.h() - 2, shadow);
    bar.fill(6, 1, 1, bar.h() - 2, {230, 230, 230});
    bar.fill(4, 0, 2, 1, shadow);
    bar.fill(4, bar.h() - 1, 2, 1, {230, 230, 230});
}

// Markers over a tile cell: a coloured frame between two black lines, open inside.
void marker(Canvas& canvas, const char* name, Rgb colour)
{
    Area a = sprite_area(canvas, name);
    a.frame(0, 0, a.w(), a.h(), ink);
    a.frame(1, 1, a.w() - 2, a.h() - 2, colour);
    a.frame(2, 2, a.w() - 4, a.h() - 4, colour);
    a.frame(3, 3, a.w() - 6, a.h() - 6, ink);
}

void paint_markers(Canvas& canvas)
{
    marker(canvas, "first marker", {255, 214, 0});
    marker(canvas, "second marker", {0, 200, 255});
    marker(canvas, "first big marker", {255, 214, 0});
    marker(canvas, "second big marker", {0, 200, 255});
}

void paint_misc(Canvas& canvas)
{
    // An 8 x 8 two-grey checker, so that repeated copies line up seamlessly.
    Area aligner = sprite_area(canvas, "background aligner");
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 8; ++x)
            aligner.set(x, y, ((x / 4) + (y / 4)) % 2 == 0 ? Rgb{168, 168, 168} : Rgb{120, 120, 120});
    // A groove between groups of tool icons.
    Area separator = sprite_area(canvas, "verti icon separator");
    separator.fill(2, 3, 20, 1, shadow);
    separator.fill(2, 4, 20, 1, {200, 200, 200});
}

// Pane header caps. The program fills the header between the caps with the
// header colour and draws the grey top line over it; the caps continue both:
// a rounded corner on the left, a slanted tab edge on the right.
void paint_header_caps(Canvas& canvas)
{
    const Rgb header{70, 130, 75};
    const Rgb top_line{183, 183, 183};
    struct Caps {
        const char* start;
        const char* end;
        Rgb edge;
    };
    const Caps caps[] = {
        {"pane header start", "pane header end", top_line},
        {"pas. pane header start", "pas. pane header end", {120, 120, 120}},
    };
    for (const Caps& c : caps) {
        Area s = sprite_area(canvas, c.start);
        s.fill(1, 1, 4, 20, header);
        s.fill(2, 0, 3, 1, top_line);
        s.set(1, 1, top_line);
        s.fill(0, 2, 1, 19, c.edge);
        Area e = sprite_area(canvas, c.end);
        for (int y = 0; y < 21; ++y) {
            e.fill(0, y, y + 1, 1, y == 0 ? top_line : header);
            e.set(y + 1, y, y == 0 ? top_line : c.edge);
        }
    }
}

}  // namespace

void paint_ui_pieces(Canvas& canvas)
{
    paint_navigation(canvas);
    paint_seam_arrows(canvas);
    paint_pointers(canvas);
    paint_small_buttons(canvas);
    paint_colour_handles(canvas);
    paint_markers(canvas);
    paint_misc(canvas);
    paint_header_caps(canvas);
}
