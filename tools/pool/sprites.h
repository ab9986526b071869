// Sprite rectangles by name, and the painters for each group of sprites.
#pragma once

#include "canvas.h"

// The rectangle of the sprite with that name; aborts on an unknown name so a
// typo cannot silently paint somewhere else.
Rect sprite_rect(const char* name);
Area sprite_area(Canvas& canvas, const char* name);
int sprite_count();

void paint_fonts(Canvas& canvas);
// Row of a glyph of the dialog font ('#' ink, '.' blank), for the logo's lettering.
const char* large_glyph_row(char c, int row);
int large_glyph_width();
int large_glyph_height();
void paint_tool_icons(Canvas& canvas);
void paint_ui_pieces(Canvas& canvas);
void paint_edge_pieces(Canvas& canvas);
void paint_logo(Canvas& canvas);
