#include "app/tile_commands.h"

#include <memory>
#include <vector>

#include "app/canvas_view.h"
#include "app/editor.h"
#include "app/tile_views.h"
#include "app/tool_bar.h"
#include "app/undo_control.h"
#include "model/core/commands.h"
#include "model/tile/transforms.h"
#include "model/tileset/tile_list_undo_node.h"
#include "model/tileset/tileset.h"

namespace {
const char* const full_text = "The tileset is full: it holds 256 tiles, the most a tileset can hold.";
const char* const not_square_text = "Only tiles of equal width and height can be rotated.";

bool is_blank(const Tile& tile) {
    for (int i = 0; i < tile.pixel_count(); ++i)
        if (!(tile.pixels()[i] == Color(0, 0, 0, 0))) return false;
    return true;
}
}  // namespace

// The tileset's own commands; -1 for those it does not handle.
int Tile_Commands::execute(int command) {
    Tileset* t = editor.current();
    if (!t) return -1;
    Tile_Store& store = t->store();
    switch (command) {
        case command_next_tile:
            if (!store.next()) return editor.refuse("There is no next tile: this is the last one.");
            return command;
        case command_previous_tile:
            if (!store.previous()) return editor.refuse("There is no previous tile: this is the first one.");
            return command;
        case command_next_tile_strip:
            t->strip().next_page();
            return command;
        case command_previous_tile_strip:
            t->strip().previous_page();
            return command;
        case command_rewind_strip:
            t->strip().rewind();
            return command;
        case command_forward_strip:
            t->strip().forward();
            return command;
        case command_add_new_tile:
            if (!store.add_tile()) return editor.refuse(full_text);
            return editor.undo().record_list_change(TileListUndoNode::inserted(command, store.current_index(), store,
                                                                               &editor.tilesets().selection()));
        // "Undo paste tile" inserts like "Insert new tile", but only beside another tile.
        case command_undo_paste_tile:
            if (store.tile_count() < 2) return editor.refuse(nullptr);
            [[fallthrough]];
        case command_insert_new_tile:
            if (!store.insert_tile()) return editor.refuse(full_text);
            return editor.undo().record_list_change(TileListUndoNode::inserted(command, store.current_index(), store,
                                                                               &editor.tilesets().selection()));
        case command_delete_tile:
        case command_undo_delete_tile: {
            // The only tile is cleared instead; clearing an empty one changes nothing.
            Tile* only = store.tile_count() < 2 ? store.current_tile() : nullptr;
            if (only && is_blank(*only))
                return editor.refuse("The only tile of a tileset is cleared, not deleted,\rand this one is empty already.");
            if (only) {
                store.delete_tile();
                only->update_texture();
                return editor.undo().record_list_change(
                    TileListUndoNode::cleared(command, store, &editor.tilesets().selection()));
            }
            const int place = store.current_index();
            std::unique_ptr<Tile_Uses> uses;
            std::unique_ptr<Tile> gone = store.remove_at(place, &uses);
            return editor.undo().record_list_change(TileListUndoNode::removed(
                command, place, std::move(gone), std::move(uses), store, &editor.tilesets().selection()));
        }
        case command_map_editor: {
            const int outcome = edit_map(*t);
            return outcome < 0 ? editor.refuse(nullptr) : outcome;
        }
        case command_arrange_select: {
            std::vector<int> order;
            const int outcome = arrange_tiles(*t, order);
            if (outcome != command_arrange_select) return outcome < 0 ? editor.refuse(nullptr) : outcome;
            // The swaps are one step to undo, and the history before them stays.
            return editor.undo().record_list_change(
                TileListUndoNode::reordered(command, std::move(order), store, &editor.tilesets().selection()));
        }
        // A view only: nothing to record.
        case command_view_tile_array:
            view_tile_array(*t);
            return editor.refuse(nullptr);
        // Nothing to undo or redo is no fault: no message.
        case command_undo:
            editor.undo().undo();
            return command;
        case command_redo:
            editor.undo().redo();
            return command;
        case command_view_undo_history:
            editor.undo().view();
            return command;
        default:
            return execute_on_tile(command);
    }
}

// Commands the tileset hands on to the editor: whole-tile transforms and the view.
int Tile_Commands::execute_on_tile(int command) {
    Tile* tile = editor.canvas().tile();
    auto changed = [&] {
        tile->update_texture();
        return command;
    };
    switch (command) {
        case command_scroll_left:
            if (!tile) return -1;
            offset_copy(*tile, 1, 0);
            return changed();
        case command_scroll_right:
            if (!tile) return -1;
            offset_copy(*tile, -1, 0);
            return changed();
        case command_scroll_up:
            if (!tile) return -1;
            offset_copy(*tile, 0, 1);
            return changed();
        case command_scroll_down:
            if (!tile) return -1;
            offset_copy(*tile, 0, -1);
            return changed();
        case command_rotate:
            if (!tile) return -1;
            if (!rotate(*tile)) return editor.refuse(not_square_text);
            return changed();
        case command_rotate_back:
            if (!tile) return -1;
            if (!rotate_back(*tile)) return editor.refuse(not_square_text);
            return changed();
        case command_mirror:
            if (!tile) return -1;
            mirror(*tile);
            return changed();
        case command_flip:
            if (!tile) return -1;
            flip(*tile);
            return changed();
        // The pen's history copy is taken after the command (after_command).
        case command_save_undo_buffer:
            return command;
        case command_save_image_to_undo:
            editor.canvas().save_copy();
            return command;
        case command_center_tile_on_view:
            editor.canvas().centre();
            return command;
        case command_zoom_tile_up:
            editor.canvas().zoom(1);
            return command;
        case command_zoom_tile_down:
            editor.canvas().zoom(-1);
            return command;
        default:
            return -1;
    }
}

void Tile_Commands::switch_seam(bool horizontal) {
    Tile* tile = editor.canvas().tile();
    if (!tile) return;
    const bool down = !editor.tools().seam_down(horizontal);
    if (!down) {
        const int keep_h = horizontal ? -1 : editor.canvas().seam_offset_h();
        const int keep_v = horizontal ? editor.canvas().seam_offset_v() : -1;
        const int end_h = horizontal ? editor.canvas().seam_offset_h() : -1;
        const int end_v = horizontal ? -1 : editor.canvas().seam_offset_v();
        editor.canvas().set_seam_offsets(end_h, end_v);
        editor.canvas().end_seams();
        editor.canvas().set_seam_offsets(keep_h, keep_v);
        return;
    }
    editor.tools().set_seam(horizontal, true);
    const int n = (horizontal ? tile->width() : tile->height()) / 2;
    for (int i = 0; i < n; ++i) offset_copy(*tile, horizontal ? -1 : 0, horizontal ? 0 : -1);
    tile->update_texture();
    if (horizontal)
        editor.canvas().set_seam_offsets(n, editor.canvas().seam_offset_v());
    else
        editor.canvas().set_seam_offsets(editor.canvas().seam_offset_h(), n);
}

