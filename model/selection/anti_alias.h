#pragma once

class Tile;

// "Anti-alias ": softens the stair steps of shapes the way a pixel artist does
// by hand. A pixel gets the half-way colour between its own and a shape's
// colour only where it sits in an inner corner of a step: its neighbour on one
// side, its neighbour above or below, and the pixel diagonally between them all
// have the shape's colour, while its neighbours on the two opposite sides have
// its own colour (the tile's edge counts as its own colour). Of two colours
// meeting at a step the one with fewer pixels in the tile is the shape, so a
// figure is softened on its outside, never eaten into. Flat areas,
// straight edges and lines one pixel wide (whose diagonal pixel is never the
// shape's) stay as they are. Every decision reads the tile as it was, so the
// order of the pixels does not matter. With a mask only selected pixels change.
// Returns how many pixels changed.
int anti_alias(Tile& tile, const Tile* mask);
