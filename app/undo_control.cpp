#include "app/undo_control.h"

#include "app/canvas_view.h"
#include "model/core/commands.h"
#include "app/editor.h"
#include "app/tool_options.h"
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
    const bool image = t->history().record(command, t->store(), this);
    t->refresh_modified();
    return image;
}

bool Undo_Control::record_if_inverse(int command) {
    Tileset* t = editor.current();
    if (!t) return false;
    const bool image = t->history().record_if_inverse(command, t->store(), this);
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
    const Replay replay(replay_depth);
    if (!t || !t->history().undo(t->store(), *this)) return false;
    t->refresh_modified();
    return true;
}

bool Undo_Control::redo() {
    Tileset* t = editor.current();
    const Replay replay(replay_depth);
    if (!t || !t->history().redo(t->store(), *this)) return false;
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

const Tile* Undo_Control::selection_mask() const { return editor.canvas().selection(); }

bool Undo_Control::has_selection() const { return editor.canvas().has_selection(); }

const Tile* Undo_Control::floating_area() const { return editor.canvas().floating_image(); }

int Undo_Control::floating_x() const { return editor.canvas().floating_position().x; }

int Undo_Control::floating_y() const { return editor.canvas().floating_position().y; }

namespace {
// Some command's inverse: "Change tile", "Delete tile", "Undo paste tile"...
bool is_an_inverse(int command) {
    for (int c = 0; c < command_count; ++c)
        if (commands::inverse(c) == command) return true;
    return false;
}
}  // namespace

// A record's own command comes back on undo only where it undoes something (an
// inverse) or chooses the tool that made the stroke. A command that recorded
// itself ("Adjust HSV", "Cut", "Paste") would do its work again, open its
// dialog or paste anew, in the middle of the history: the record's pixels are
// the whole undo for it.
void Undo_Control::run_command(int command) {
    if (command < 0 || command >= command_count) return;
    if (commands::is_tool(command) || commands::inverse(command) >= 0 || is_an_inverse(command))
        editor.execute(command);
}

void Undo_Control::tile_changed() {
    Tileset* t = editor.current();
    editor.canvas().set_tile(t ? t->store().current_tile() : nullptr);
}

void Undo_Control::restore_selection(const Tile* mask) {
    Canvas_View& view = editor.canvas();
    Tile* selection = view.selection();
    if (!mask || !selection || !mask->same_size(*selection)) {
        view.reset_selection();
        return;
    }
    mask->copy_into(*selection);
    // A record of the selection tools may hold an empty mask: nothing selected.
    bool any = false;
    for (int i = 0; i < selection->pixel_count() && !any; ++i) {
        const Color c = selection->pixels()[i];
        any = c.blue == 255 && c.green == 255 && c.red == 255;
    }
    view.set_has_selection(any);
}

// A floating image that comes back is ready to be moved again: "Work
// selection" is chosen, except in the mode that keeps images floating
// under every tool.
void Undo_Control::restore_floating_area(const Tile* area, int x, int y) {
    editor.canvas().replace_float(area, x, y);
    const bool persistent = g_tool_options && g_tool_options->selection_mode() == Selection_Tools::persistent;
    if (area && !persistent) editor.select_tool(command_work_selection);
}
