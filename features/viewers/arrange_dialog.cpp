#include "features/viewers/arrange_dialog.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <utility>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/sprites.h"
#include "platform/ui_colors.h"
#include "model/tile/tile_store.h"
#include "ui/backdrop.h"
#include "ui/modal_loop.h"
#include "ui/dialog_row.h"
#include "platform/text_writer.h"
#include "platform/wait_for_key.h"

namespace {
constexpr SDL_Keycode key_tab = 9;
constexpr SDL_Keycode key_return = 13;
constexpr SDL_Keycode key_escape = 27;
constexpr SDL_Keycode key_space = 32;
constexpr SDL_Keycode key_yes = 121;
constexpr int text_lines = 3;
constexpr Color cell_color = ui_colors[ui_grey_101];
constexpr Color free_cell_color = ui_colors[ui_grey_169];

// The grid and its texts as one dialog item, so the dialog sizes its frame
// around them and places the "Ok" bar below.
class Grid_Item : public Dialog_Item {
public:
    Grid_Item(int width, int height) : Dialog_Item(no_id, no_id) {
        area.width = width;
        area.height = height;
    }
    Dialog_Event hit(int, int) override { return Dialog_Event{}; }
    // The owner draws the grid after the frame, markers and texts included.
    void draw() override {}
};

void paint_dialog(void* dialog) { static_cast<Arrange_Dialog*>(dialog)->draw(); }
Backdrop::Area dialog_area(const void* dialog) { return static_cast<const Arrange_Dialog*>(dialog)->modal_area(); }

int mouse_button_code(Uint8 button) {
    if (button == SDL_BUTTON_LEFT) return 1;
    if (button == SDL_BUTTON_RIGHT) return 2;
    return 0;
}
}  // namespace

Arrange_Dialog::Arrange_Dialog(int columns, int rows, int cell_width, int cell_height, Tile_Store& store)
    : columns(std::max(columns, 1)),
      rows(std::max(rows, 1)),
      cell_width(std::max(cell_width, 1)),
      cell_height(std::max(cell_height, 1)),
      store(store),
      box("Arrange/Select") {
    const int line = g_main_window->writer(font_regular).line_height();
    auto item = std::make_unique<Grid_Item>(this->columns * this->cell_width,
                                            this->rows * this->cell_height + text_lines * line);
    grid_item = item.get();
    auto row = std::make_unique<Dialog_Row>();
    row->add(std::move(item));
    box.add_row(std::move(row));
    box.finish(false);
}

Rectangle Arrange_Dialog::grid() const {
    return Rectangle{grid_item->area.x, grid_item->area.y, columns * cell_width, rows * cell_height};
}

int Arrange_Dialog::hit(float x, float y) const {
    const Rectangle g = grid();
    if (!g.contains(x, y)) return -1;
    const int column = (int(x) - g.x) / cell_width;
    const int row = (int(y) - g.y) / cell_height;
    const int index = columns * row + column;
    return index < store.tile_count() ? index : -1;
}

// The picture keeps the tile's proportions inside the markers' frame: small
// tiles grow by a whole factor so their pixels stay square, large ones shrink.
Rectangle Arrange_Dialog::picture_of(int index) const {
    const Rectangle g = grid();
    const int room_w = std::max(cell_width - 2 * picture_inset, 1);
    const int room_h = std::max(cell_height - 2 * picture_inset, 1);
    const int tw = std::max(int(store.tile_width()), 1);
    const int th = std::max(int(store.tile_height()), 1);
    int w = tw;
    int h = th;
    const int zoom = std::min(room_w / tw, room_h / th);
    if (zoom >= 1) {
        w = tw * zoom;
        h = th * zoom;
    } else {
        const double scale = std::min(double(room_w) / tw, double(room_h) / th);
        w = std::max(1, int(tw * scale + 0.5));
        h = std::max(1, int(th * scale + 0.5));
    }
    const int cell_x = g.x + (index % columns) * cell_width;
    const int cell_y = g.y + (index / columns) * cell_height;
    return Rectangle{cell_x + (cell_width - w) / 2, cell_y + (cell_height - h) / 2, w, h};
}

bool Arrange_Dialog::run() {
    primary = store.current_index();
    start = primary;
    secondary = 0;
    hovered = -1;
    swapped = false;
    run_modal_layer(paint_dialog, this, dialog_area, [this](SDL_Event& event) { return handle(event); });
    flush_events();
    return swapped;
}

bool Arrange_Dialog::handle(const SDL_Event& event) {
    switch (event.type) {
        case SDL_EVENT_QUIT:
        case SDL_EVENT_WINDOW_CLOSE_REQUESTED:
            return false;
        case SDL_EVENT_KEY_DOWN:
            switch (event.key.key) {
                case key_escape:
                case key_return:
                case key_yes:
                    return false;
                case key_space:
                    if (primary != start) store.go_to(primary);
                    return false;
                case key_tab:
                    if (store.swap_tiles(primary, secondary)) {
                        std::swap(primary, secondary);
                        swapped = true;
                    }
                    return true;
                default:
                    return true;
            }
        case SDL_EVENT_MOUSE_MOTION:
            hovered = hit(event.motion.x, event.motion.y);
            return true;
        case SDL_EVENT_MOUSE_BUTTON_DOWN: {
            const int index = hit(event.button.x, event.button.y);
            if (index < 0) {
                hovered = -1;
                const Dialog_Event pressed = box.container().hit(int(event.button.x), int(event.button.y));
                return pressed.type != item_accept;
            }
            const int button = mouse_button_code(event.button.button);
            if (button == 1) primary = index;
            if (button == 2) secondary = index;
            hovered = index;
            return true;
        }
        default:
            return true;
    }
}

void Arrange_Dialog::draw() {
    box.draw();
    const Rectangle g = grid();
    draw_grid(g);
    draw_marker(sprite_first_big_marker, primary, g);
    draw_marker(sprite_second_big_marker, secondary, g);
    draw_texts(g);
}

// Only the cells the grid holds are drawn; a loaded file can hold more tiles.
// Free cells are lighter, so the user sees where the tiles end.
void Arrange_Dialog::draw_grid(const Rectangle& g) {
    Main_Window& w = *g_main_window;
    const int cells = columns * rows;
    const int shown = std::min(store.tile_count(), cells);
    for (int index = 0; index < cells; ++index) {
        const Rectangle opening{g.x + (index % columns) * cell_width + picture_inset,
                                g.y + (index / columns) * cell_height + picture_inset,
                                cell_width - 2 * picture_inset, cell_height - 2 * picture_inset};
        w.fill_rect(opening, index < shown ? cell_color : free_cell_color);
    }
    int index = 0;
    for (const auto& tile : store.all()) {
        if (index >= shown) break;
        const Rectangle p = picture_of(index);
        if (Tile_Texture* texture = tile->texture()) texture->draw_scaled(p.x, p.y, p.width, p.height);
        ++index;
    }
}

// The marker's row divides by the number of rows, not of columns, as it
// always has; on the square grid the editor uses both are the same.
void Arrange_Dialog::draw_marker(int sprite, int index, const Rectangle& g) {
    if (index < 0 || index >= store.tile_count()) return;
    const int row = index / rows;
    if (row >= rows) return;
    g_main_window->sprite(sprite, g.x + (index % columns) * cell_width, g.y + row * cell_height);
}

// The texts start below as many cell heights as there are columns, as they
// always have; on a square grid that is just below the grid.
void Arrange_Dialog::draw_texts(const Rectangle& g) {
    char status[128];
    if (hovered >= 0)
        std::snprintf(status, sizeof status, "Tile: %d  (primary: %d, secondary: %d)    \r", hovered, primary,
                      secondary);
    else
        std::snprintf(status, sizeof status, "Tile: ?  (primary: %d, secondary: %d)    \r", primary, secondary);
    Text_Writer& writer = g_main_window->writer(font_regular);
    writer.set_cursor(g.x, g.y + cell_height * columns);
    writer.write("Tab: Swap tiles - Space: Select current tile\r");
    writer.write(status);
    writer.write("Note: Swapping tiles clears undo history.");
}
