#pragma once

#include <memory>
#include <vector>

#include "model/tile/tile.h"

// One brush of the pad: an image with alpha and the pixel of it that lies
// under the pointer while stamping.
struct Pad_Brush {
    std::unique_ptr<Tile> image;
    int hot_x = 0;
    int hot_y = 0;
};

// The user's own brushes, kept between sessions: an ordered list of images
// of up to 64 x 64 pixels, one of which may be selected. The pad remembers
// whether it changed since it was loaded or saved, so that an untouched pad
// is never written.
class Brush_Pad {
public:
    // Three pages of the pad pane's grid hold it, and a full pad still loads
    // in a few milliseconds.
    static constexpr int capacity = 32;
    static constexpr int max_side = 64;

    enum class Add_Result { added, already_there, full, unusable };

    int count() const { return int(brushes.size()); }
    bool empty() const { return brushes.empty(); }
    bool full() const { return count() >= capacity; }
    const Pad_Brush& brush(int index) const { return brushes[size_t(index)]; }
    // -1 when no brush is selected.
    int selected() const { return selected_index; }
    const Pad_Brush* selected_brush() const { return selected_index >= 0 ? &brush(selected_index) : nullptr; }
    // Any index outside the pad selects nothing.
    void select(int index);

    // Copies the image in at the end of the pad and selects it. An image of
    // no pixels or larger than 64 a side, or a hotspot outside it, is unusable.
    Add_Result add(const Tile& image, int hot_x, int hot_y);
    // The brush that holds exactly these pixels and this hotspot, or -1.
    int find(const Tile& image, int hot_x, int hot_y) const;
    // Removes the selected brush; the one after it (or before, at the end)
    // becomes selected. False when none is selected.
    bool remove_selected();

    // Loading fills the pad without marking it changed.
    void append_loaded(Pad_Brush brush) { brushes.push_back(std::move(brush)); }
    void select_loaded(int index) { selected_index = index; }
    void clear();

    bool is_changed() const { return changed; }
    void mark_saved() { changed = false; }

    static bool usable(int width, int height, int hot_x, int hot_y);

private:
    std::vector<Pad_Brush> brushes;
    int selected_index = -1;
    bool changed = false;
};
