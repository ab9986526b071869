#pragma once

#include "model/color/color.h"

// Fills columns x rows cells, row by row, with variations of c (f is the
// fallback of the conversions): darker, darker and more saturated, lighter,
// lighter and more saturated. Rows past the fourth repeat the last kind.
void build_variations(Color c, Color f, Color* cells, int columns, int rows);
