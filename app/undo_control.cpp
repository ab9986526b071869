#include "app/undo_control.h"

#include "app/canvas_view.h"
#include "model/core/commands.h"
#include "app/editor.h"
#include "app/tool_options.h"
#include "model/selection/tile_selection.h"
#include "model/tileset/tile_list_undo_node.h"
#include "model/tileset/tileset.h"
#include "app/selection/selection_tools.h"
#include "features/viewers/undo_history_viewer.h"
#include "features/viewers/undo_meter.h"

Undo_Control::Undo_Control(Editor& editor)
    : editor(editor), undo_meter(std::make_unique<Undo_Meter>(meter_x, meter_y)) {}

Undo_Control::~Undo_Control() = default;

bool Undo_Control::record(int command) {
    Tileset* t = editor.current();
    if (!t) return false;
    const bool image = t->history().record(command, t->store(), &selection());
    t->refresh_modified();
    return image;
}

bool Undo_Control::record_if_inverse(int command) {
    Tileset* t = editor.current();
    if (!t) return false;
    const bool image = t->history().record_if_inverse(command, t->store(), &selection());
    t->refresh_modified();
    return image;
}

int Undo_Control::record_list_change(std::unique_ptr<TileListUndoNode> record) {
    Tileset* t = editor.current();
    if (!t || !record) return -1;
    const int command = record->undo_command();
    t->history().push(std::move(record));
    t->refresh_modified();
    return command;
}

void Undo_Control::record_float_left(Tileset& from) {
    const Tile* tile = from.store().current_tile();
    if (!tile) return;
    from.history().push(std::make_unique<ImageUndoNode>(command_cut, from.store().current_index(), *tile, nullptr));
    from.refresh_modified();
}

void Undo_Control::record_put_down() {
    Tileset* owner = editor.shown_tileset_if_open();
    const Tile* tile = editor.canvas().tile();
    if (!owner || !tile) return;
    int index = 0;
    for (const auto& t : owner->store().all()) {
        if (t.get() == tile) {
            // What the user sees does not change: no change of the contents.
            owner->history().push(std::make_unique<ImageUndoNode>(command_deselect, index, *tile, nullptr), false);
            return;
        }
        ++index;
    }
}

namespace {
struct Replay {
    explicit Replay(int& depth) : depth(depth) { ++depth; }
    ~Replay() { --depth; }
    int& depth;
};
}  // namespace

bool Undo_Control::undo() {
    Tileset* t = editor.current();
    if (!t || t->history().position() <= 0) return false;
    const Replay replay(replay_depth);
    choose_tool_of(t->history().command_to_undo());
    if (!t->history().undo(t->store(), selection())) return false;
    show_applied();
    t->refresh_modified();
    return true;
}

bool Undo_Control::redo() {
    Tileset* t = editor.current();
    if (!t || t->history().position() < 0 || t->history().position() + 1 >= t->history().count()) return false;
    const Replay replay(replay_depth);
    choose_tool_of(t->history().command_to_redo());
    if (!t->history().redo(t->store(), selection())) return false;
    show_applied();
    t->refresh_modified();
    return true;
}

void Undo_Control::view() {
    if (Tileset* t = editor.current()) show_undo_history(t->history());
}

void Undo_Control::draw_meter() {
    Tileset* t = editor.current();
    undo_meter->show(t ? &t->history() : nullptr);
    undo_meter->draw();
}

Tile_Selection& Undo_Control::selection() { return editor.tilesets().selection(); }

// Chosen before the record is applied, as the user would choose it: leaving a
// tool may put a floating image down, which the record then replaces.
void Undo_Control::choose_tool_of(int command) {
    if (command >= 0 && command < command_count && commands::is_tool(command)) editor.execute(command);
}

// "Work selection" is chosen for a floating image that came back, except in
// the mode that keeps images floating under every tool.
void Undo_Control::show_applied() {
    Tileset* t = editor.current();
    editor.canvas().set_tile(t ? t->store().current_tile() : nullptr);
    const bool persistent = g_tool_options && g_tool_options->selection_mode() == Selection_Tools::persistent;
    if (selection().float_pending() && !persistent) editor.select_tool(command_work_selection);
}
