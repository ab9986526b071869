#include "features/map/map_view.h"

#include <algorithm>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/texture.h"
#include "model/tile/tile_store.h"
#include "model/core/line_walk.h"
#include "model/map/layer_stack.h"
#include "model/map/map_editor.h"
#include "model/map/map_image.h"
#include "ui/backdrop.h"
#include "ui/modal_loop.h"
#include "platform/wait_for_key.h"

namespace {
constexpr SDL_Keycode key_escape = 27;
constexpr int gap = 12;
constexpr int row_gap = 8;
constexpr int button_height = 28;

void paint_view(void* view) { static_cast<Map_View*>(view)->draw(); }
Backdrop::Area view_area(const void* view) { return static_cast<const Map_View*>(view)->modal_area(); }

Rectangle centred_frame() {
    const int width = Map_View::map_room + gap + Map_View::chooser_size + gap + Map_View::layer_column +
                      Pane::inset_left + Pane::inset_right;
    const int height = Map_View::map_room + row_gap + button_height + Pane::inset_top + Pane::inset_bottom;
    return Rectangle{(int(g_main_window->width()) - width) / 2, (int(g_main_window->height()) - height) / 2, width,
                     height - Pane::header_height};
}

// The map's size in tile pixels.
int map_width(const Map_Editor& e, const Tile_Store& s) { return std::max(e.map().columns() * int(s.tile_width()), 1); }
int map_height(const Map_Editor& e, const Tile_Store& s) { return std::max(e.map().rows() * int(s.tile_height()), 1); }

std::string title_for(const std::string& name) { return "Map editor - " + name; }
}  // namespace

Map_View::Map_View(Map_Editor& editor, const Tile_Store& store, const std::string& name)
    : editor(editor),
      store(store),
      pane(centred_frame(), title_for(name).c_str()),
      factor(std::max(1, std::min(map_room / map_width(editor, store), map_room / map_height(editor, store)))),
      chosen(store.tile_count() > 0 ? store.current_index() : -1),
      start_generation(editor.generation()) {
    map_pixels.assign(size_t(map_width(editor, store)) * factor * size_t(map_height(editor, store)) * factor,
                      Color());
    composed_cells.assign(size_t(editor.map().cell_count()), ~uint64_t(0));
    compose_chooser();
    compose_picture();
}

Map_View::~Map_View() = default;

Rectangle Map_View::picture() const {
    const Rectangle c = pane.client_area();
    const int w = editor.map().columns() * int(store.tile_width()) * factor;
    const int h = editor.map().rows() * int(store.tile_height()) * factor;
    return Rectangle{c.x + (map_room - w) / 2, c.y + (map_room - h) / 2, w, h};
}

Rectangle Map_View::chooser() const {
    const Rectangle c = pane.client_area();
    return Rectangle{c.x + map_room + gap, c.y, chooser_size, chooser_size};
}

Rectangle Map_View::button(int which) const {
    const Rectangle c = pane.client_area();
    constexpr int width = 64;
    constexpr int spacing = 4;
    if (which >= button_layer_add) {
        // Under the list of layers, two to a row.
        const int k = which - button_layer_add;
        const int half = (layer_column - spacing) / 2;
        const int x = chooser().x + chooser_size + gap;
        const int top = c.y + layer_row_height * (Map_Editor::most_layers + 1) + row_gap;
        return Rectangle{x + (k % 2) * (half + spacing), top + (k / 2) * 28, half, 24};
    }
    const int y = c.y + map_room + row_gap;
    if (which == button_close) return Rectangle{c.x + c.width - width, y, width, button_height};
    if (which == button_image) return Rectangle{c.x + c.width - 2 * width - 2 * spacing, y, width, button_height};
    // Tools, then the toggles, then undo and redo, each group a little apart.
    const int group_gap = which >= button_undo ? 2 * gap : which >= button_grid ? gap : 0;
    return Rectangle{c.x + which * (width + spacing) + group_gap, y, width, button_height};
}

bool Map_View::cell_at(float x, float y, int& column, int& row) const {
    const Rectangle p = picture();
    if (!p.contains(x, y)) return false;
    column = (int(x) - p.x) / (int(store.tile_width()) * factor);
    row = (int(y) - p.y) / (int(store.tile_height()) * factor);
    return !editor.map().is_outside(column, row);
}

Rectangle Map_View::cell_area(int column, int row) const {
    const Rectangle p = picture();
    const int w = int(store.tile_width()) * factor;
    const int h = int(store.tile_height()) * factor;
    return Rectangle{p.x + column * w, p.y + row * h, w, h};
}

int Map_View::chooser_hit(float x, float y) const {
    const Rectangle c = chooser();
    if (!c.contains(x, y)) return -1;
    const int index = ((int(y) - c.y) / chooser_cell) * chooser_columns + (int(x) - c.x) / chooser_cell;
    return index < store.tile_count() ? index : -1;
}

Rectangle Map_View::terrain_swatch(int which) const {
    const Rectangle c = chooser();
    constexpr int size = 18;
    return Rectangle{c.x + (which - 1) * (size + 4), c.y + chooser_size + 26, size, size};
}

Rectangle Map_View::missing_area() const {
    const Rectangle plus = terrain_swatch(Terrain_Set::most_terrains + 1);
    const Rectangle c = chooser();
    return Rectangle{plus.x + plus.width + 16, plus.y, c.x + c.width - (plus.x + plus.width + 16), plus.height};
}

const std::vector<int>& Map_View::missing_cells() {
    if (missing_generation != editor.generation()) {
        missing.clear();
        const Tile_Map& map = editor.map();
        if (editor.terrain().terrain_count() > 0)
            for (int y = 0; y < map.rows(); ++y)
                for (int x = 0; x < map.columns(); ++x)
                    if (editor.is_missing(x, y)) missing.push_back(y * map.columns() + x);
        missing_generation = editor.generation();
    }
    return missing;
}

const Layer_Stack& Map_View::visible_layers() {
    if (stacked_generation != editor.generation()) {
        layers.show(editor, store);
        stacked_generation = editor.generation();
    }
    return layers;
}

const std::vector<Seam>& Map_View::seam_list() {
    if (checked_generation != editor.generation()) {
        checker.run(visible_layers(), store);
        checked_generation = editor.generation();
    }
    return checker.seams();
}

Map_View::Outcome Map_View::run() {
    close_asked = false;
    run_modal_layer(paint_view, this, view_area, [this](SDL_Event& event) { return handle(event); });
    editor.end_stroke();
    flush_events();
    // The main window takes the close request on and asks whether to quit.
    if (close_asked) push_quit_request();
    return Outcome{picked ? chosen : -1, editor.generation() != start_generation};
}

bool Map_View::handle(const SDL_Event& event) {
    switch (event.type) {
        case SDL_EVENT_QUIT:
        case SDL_EVENT_WINDOW_CLOSE_REQUESTED:
            close_asked = true;
            return false;
        case SDL_EVENT_KEY_DOWN: {
            if (renaming >= 0) {
                type_name(event.key);
                return true;
            }
            const bool ctrl = (event.key.mod & SDL_KMOD_CTRL) != 0;
            switch (event.key.key) {
                case key_escape: return false;
                case SDLK_P: push_button(button_paint); break;
                case SDLK_F: push_button(button_fill); break;
                case SDLK_E: push_button(button_eraser); break;
                case SDLK_T: push_button(button_terrain); break;
                case SDLK_I: push_button(button_image); break;
                case SDLK_G: push_button(button_grid); break;
                case SDLK_S: push_button(button_seams); break;
                case SDLK_V: push_button(button_preview); break;
                case SDLK_Z:
                    if (ctrl) push_button(button_undo);
                    break;
                // Redo answers to the main window's Ctrl+R and to Ctrl+Y; the
                // plain keys flip and turn the tile painted.
                case SDLK_R:
                    if (ctrl)
                        push_button(button_redo);
                    else if (store.tile_width() == store.tile_height())
                        brush_turn = turn::quarter_turned(brush_turn);
                    break;
                case SDLK_Y:
                    if (ctrl)
                        push_button(button_redo);
                    else
                        brush_turn = turn::flipped_v(brush_turn);
                    break;
                case SDLK_X: brush_turn = turn::flipped_h(brush_turn); break;
                case SDLK_PAGEUP: editor.choose_layer(editor.current_layer() + 1); break;
                case SDLK_PAGEDOWN: editor.choose_layer(editor.current_layer() - 1); break;
                default: break;
            }
            return true;
        }
        case SDL_EVENT_MOUSE_BUTTON_DOWN:
            if (event.button.button == SDL_BUTTON_LEFT && button(button_close).contains(event.button.x, event.button.y))
                return false;
            if (!layer_press(event.button.x, event.button.y, event.button.button, event.button.clicks))
                press(event.button.x, event.button.y, event.button.button);
            return true;
        case SDL_EVENT_MOUSE_BUTTON_UP:
            if (event.button.button == SDL_BUTTON_LEFT && stroking) {
                stroking = false;
                editor.end_stroke();
            }
            return true;
        case SDL_EVENT_MOUSE_MOTION:
            motion(event.motion.x, event.motion.y);
            return true;
        default:
            return true;
    }
}

void Map_View::choose(int tile) {
    if (tile < 0) return;
    chosen = tile;
    picked = true;
}

// The corner nearest the point: the terrain tool paints corners, not cells.
void Map_View::paint_terrain_at(float x, float y) {
    const Rectangle p = picture();
    const int cw = int(store.tile_width()) * factor;
    const int ch = int(store.tile_height()) * factor;
    const int cx = (int(x) - p.x + cw / 2) / cw;
    const int cy = (int(y) - p.y + ch / 2) / ch;
    if (last_corner_x < 0) last_corner_x = cx, last_corner_y = cy;
    for_each_line_point(last_corner_x, last_corner_y, cx, cy,
                        [&](int px, int py) { editor.paint_terrain(px, py, terrain); });
    last_corner_x = cx;
    last_corner_y = cy;
}

// In the chooser a quarter of a tile is its corner; in the strip a swatch
// chooses a terrain (the right button takes it away) and "+" adds one.
void Map_View::terrain_press(float x, float y, Uint8 mouse_button) {
    Terrain_Set set = editor.terrain();
    const int tile = chooser_hit(x, y);
    if (tile >= 0) {
        const Rectangle c = chooser();
        const int qx = ((int(x) - c.x) % chooser_cell) * 2 / chooser_cell;
        const int qy = ((int(y) - c.y) % chooser_cell) * 2 / chooser_cell;
        const int corner = qy == 0 ? (qx == 0 ? Terrain_Set::top_left : Terrain_Set::top_right)
                                   : (qx == 0 ? Terrain_Set::bottom_left : Terrain_Set::bottom_right);
        Terrain_Set::Corners corners = set.corners(tile);
        corners[size_t(corner)] = uint8_t(mouse_button == SDL_BUTTON_RIGHT ? 0 : terrain);
        set.set_corners(tile, corners);
        editor.set_terrain(set);
        return;
    }
    for (int t = 1; t <= set.terrain_count(); ++t) {
        if (!terrain_swatch(t).contains(x, y)) continue;
        // The right button takes the terrain away (one step to undo).
        if (mouse_button == SDL_BUTTON_RIGHT && editor.remove_terrain(t))
            terrain = std::clamp(terrain > t ? terrain - 1 : terrain, 1, std::max(editor.terrain().terrain_count(), 1));
        else if (mouse_button == SDL_BUTTON_LEFT)
            terrain = t;
        return;
    }
    if (mouse_button != SDL_BUTTON_LEFT) return;
    if (terrain_swatch(set.terrain_count() + 1).contains(x, y) && set.add_terrain()) {
        terrain = set.terrain_count();
        editor.set_terrain(set);
    }
}

void Map_View::press(float x, float y, Uint8 mouse_button) {
    int column = 0;
    int row = 0;
    if (current_tool == tool_terrain && mouse_button == SDL_BUTTON_LEFT && picture().contains(x, y)) {
        editor.begin_stroke();
        last_corner_x = last_corner_y = -1;
        paint_terrain_at(x, y);
        stroking = true;
        return;
    }
    if (current_tool == tool_terrain && !picture().contains(x, y) && !button(button_terrain).contains(x, y)) {
        terrain_press(x, y, mouse_button);
        if (chooser_hit(x, y) >= 0) return;
    }
    if (cell_at(x, y, column, row)) {
        if (mouse_button == SDL_BUTTON_RIGHT) {
            const int under = editor.map().at(column, row);
            if (under < store.tile_count()) choose(under);
            if (under >= 0 && under < store.tile_count()) brush_turn = editor.map().turn_at(column, row);
        } else if (mouse_button == SDL_BUTTON_LEFT) {
            const int tile = current_tool == tool_eraser ? Tile_Map::empty : chosen;
            if (current_tool == tool_fill) {
                editor.fill(column, row, tile, brush_turn);
            } else if (tile >= 0 || current_tool == tool_eraser) {
                editor.begin_stroke();
                editor.paint(column, row, tile, brush_turn);
                stroking = true;
                last_column = column;
                last_row = row;
            }
        }
        return;
    }
    if (mouse_button == SDL_BUTTON_LEFT || mouse_button == SDL_BUTTON_RIGHT) choose(chooser_hit(x, y));
    if (mouse_button != SDL_BUTTON_LEFT) return;
    for (int b = 0; b < button_count; ++b)
        if (button(b).contains(x, y)) push_button(b);
}

void Map_View::motion(float x, float y) {
    int column = -1;
    int row = -1;
    if (!cell_at(x, y, column, row)) column = row = -1;
    hover_column = column;
    hover_row = row;
    if (stroking && current_tool == tool_terrain) {
        if (picture().contains(x, y)) paint_terrain_at(x, y);
        return;
    }
    if (!stroking || column < 0) return;
    const int tile = current_tool == tool_eraser ? Tile_Map::empty : chosen;
    editor.paint_line(last_column, last_row, column, row, tile, brush_turn);
    last_column = column;
    last_row = row;
}

void Map_View::push_button(int which) {
    switch (which) {
        case button_paint: current_tool = tool_paint; break;
        case button_fill: current_tool = tool_fill; break;
        case button_eraser: current_tool = tool_eraser; break;
        case button_terrain:
            current_tool = tool_terrain;
            // A first terrain set starts with two terrains to paint with.
            if (editor.terrain().terrain_count() == 0) {
                Terrain_Set set = editor.terrain();
                set.add_terrain();
                set.add_terrain();
                editor.set_terrain(set);
            }
            terrain = std::clamp(terrain, 1, editor.terrain().terrain_count());
            break;
        case button_grid: grid = !grid; break;
        case button_seams: seams = !seams; break;
        case button_preview: editor.in_preview = !editor.in_preview; break;
        case button_image:
            if (save_image) save_image(::map_image(editor, store));
            break;
        case button_undo:
        case button_redo:
            which == button_undo ? editor.undo() : editor.redo();
            terrain = std::clamp(terrain, 1, std::max(editor.terrain().terrain_count(), 1));
            break;
        case button_layer_add: editor.add_layer(); break;
        case button_layer_remove: editor.remove_layer(); break;
        case button_layer_raise: editor.move_layer(editor.current_layer(), editor.current_layer() + 1); break;
        case button_layer_lower: editor.move_layer(editor.current_layer(), editor.current_layer() - 1); break;
        case button_layer_rename:
            renaming = editor.current_layer();
            typed_name = editor.layer(renaming).name;
            name_selected = true;
            break;
        default: break;
    }
}

Map_View::Outcome show_map_editor(Map_Editor& editor, const Tile_Store& store, const std::string& name,
                                  std::function<void(const Picture&)> save_image) {
    Map_View view(editor, store, name);
    view.save_image = std::move(save_image);
    return view.run();
}
