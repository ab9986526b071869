#pragma once

class Image;
class Tile_Store;
class Tileset;

// The tiles in order, 16 to a row, on a sheet of 16 x 16 tiles whatever their
// number; empty slots stay opaque black and tiles past the 256th are left
// out. The sheet must be 16 tiles wide and high.
void compose_sheet(const Tile_Store& store, Image& sheet);

// After the tileset itself was saved: its map as NAME.tmx with the sheet
// NAME.bmp beside the tileset's file. A blank map writes nothing; a map file
// this map was not read whole from (or written to) is replaced only when the
// user agrees. False when writing failed (the user has been told).
bool save_map(Tileset& tileset);
// After the tileset was loaded: its map from NAME.tmx beside it, when there is
// one; whatever could not be read is reported in a message.
void load_map(Tileset& tileset);
