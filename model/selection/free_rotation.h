#pragma once

class Tile;

// "Freehand rotate": the tile, or only its selected pixels, turned by an
// angle about the centre (the tile's, or the selection's bounding box's).
// Each pixel of the result takes the nearest source pixel, so no new colours
// appear and a turn by a multiple of 90 degrees is exact. The result is
// written into destination, which has the source's size; pixels that turn in
// from outside the tile, and the place a turned selection left, are transparent.
void rotate_nearest(const Tile& source, Tile& destination, double degrees, const Tile* mask);
