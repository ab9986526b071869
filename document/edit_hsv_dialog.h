#pragma once

class Tile;

// The "Edit HSV" dialog: the tile as the chosen adjustment would leave it,
// the adjustment's choice and its amount slider. On "Ok" the adjustment is
// applied to the tile and true returned; the mode and amount are kept for
// the next time.
bool edit_hsv(Tile& tile);
