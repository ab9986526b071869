#pragma once

#include <memory>
#include <string>

#include "model/brushpad/brush_pad.h"
#include "model/core/rectangle.h"

class Pane;
class Texture;

// The brush pad beside the tool options: the "Selected" pane shows the brush
// the stamp draws with, enlarged; the "Brush pad" pane shows the pad's
// brushes, small ones magnified, fifteen to a page; a click selects one.
// It also keeps the temporary brush that "Use as brush" makes.
class Brush_Pad_Pane {
public:
    static constexpr int width = 202;
    static constexpr int height = 531;
    static constexpr int columns = 3;
    static constexpr int rows = 5;
    static constexpr int per_page = columns * rows;
    static constexpr int cell = Brush_Pad::max_side;
    static constexpr int selected_body = 140;
    static constexpr int gap = 4;
    static constexpr int page_button_width = 30;
    static constexpr int page_button_height = 22;

    // The brush the stamp draws with, or no image when neither a temporary
    // brush nor a pad brush is chosen.
    struct Stamp {
        const Tile* image = nullptr;
        int hot_x = 0;
        int hot_y = 0;
    };

    // (x, y) is the top-left corner of the 202 x 531 column.
    Brush_Pad_Pane(int x, int y);
    ~Brush_Pad_Pane();

    Brush_Pad& store() { return pad; }
    const Brush_Pad& store() const { return pad; }
    Stamp current() const;
    bool has_temporary() const { return temporary != nullptr; }

    // Makes a copy of the image the temporary brush; the pad's selection is
    // dropped so that the stamp draws with it. A negative hotspot is the
    // image's middle. False for an image of no pixels.
    bool take_temporary(const Tile& image, int hot_x = -1, int hot_y = -1);
    // Copies the current brush (or, with none, the fallback) into the pad
    // and selects it there; the temporary brush is then the pad's.
    Brush_Pad::Add_Result move_to_pad(const Tile* fallback);
    bool delete_selected();

    // Reads the pad from the file; a refused file is remembered and never
    // written over. Returns the reason a file was refused, or nothing.
    std::string load(const std::string& path);
    // Writes the pad when it changed and its file was not refused.
    bool save_if_changed(const std::string& path);
    bool file_refused() const { return refused; }
    // Changes that saving would keep: none while the file was refused.
    bool has_unsaved_brushes() const { return !refused && pad.is_changed(); }

    // fallback is what the stamp draws with when nothing is chosen.
    void draw(const Tile* fallback);
    // True when the press fell on the column; a brush's cell selects it.
    bool click(int x, int y);
    // A brush was picked by a click since the last call.
    bool take_picked();

    int page() const { return first / per_page; }
    int page_count() const;
    Rectangle cell_rect(int slot) const;
    // Where the brush in a cell of the page is drawn.
    Rectangle thumbnail(int slot) const;
    Rectangle previous_button() const;
    Rectangle next_button() const;
    const Pane& selected_pane() const { return *selected; }
    const Pane& grid_pane() const { return *grid; }
    // Where "Selected" shows an image, enlarged.
    Rectangle view_for(const Tile& image) const;

private:
    void draw_checker(const Rectangle& r);
    void show_selected_page();

    Brush_Pad pad;
    std::unique_ptr<Tile> temporary;
    int temporary_hot_x = 0;
    int temporary_hot_y = 0;
    std::unique_ptr<Pane> selected;
    std::unique_ptr<Pane> grid;
    std::unique_ptr<Texture> checker;
    int first = 0;
    bool refused = false;
    bool picked = false;
};
