#include "app/selection/selection_tools.h"

#include "app/canvas_view.h"
#include "model/core/commands.h"
#include "app/editor.h"
#include "app/strokes/drawing_tools.h"
#include "app/tool_options.h"
#include "app/undo_control.h"
#include "model/tileset/tileset.h"
#include "model/selection/anti_alias.h"
#include "model/selection/floating.h"
#include "model/selection/mask_ops.h"
#include "ui/message_box.h"
#include "ui/options.h"
#include "ui/ui_globals.h"

namespace {
const char* const paste_refused = "Nothing selected to paste. Use Copy or Cut to select an image.";
const char* const copy_refused = "Nothing selected to copy. Select an area with a selector first.";
const char* const cut_refused = "Nothing selected to cut. Select an area with a selector first.";
const char* const clone_refused = "Nothing selected to clone. Select an area with a selector first.";
const char* const fill_refused = "Nothing selected to fill. Select an area with a selector first.";
const char* const clear_refused = "Nothing selected to clear. Select an area with a selector first.";
const char* const smooth_refused = "Nothing to smooth: there are no stair steps here.";
}  // namespace

Selection_Tools::Selection_Tools(Editor& editor) : editor(editor) {
    editor.set_stroke(command_scroll, &scroll);
    editor.set_stroke(command_freehand_rotate, &rotate);
    editor.set_stroke(command_brush_selector, &brush);
    editor.set_stroke(command_circle_selector, &ellipse);
    editor.set_stroke(command_rectangle_selector, &rectangle);
    editor.set_stroke(command_wand_selector, &wand);
    editor.set_stroke(command_work_selection, &work);
    g_copy_buffer = &copies;
}

Selection_Tools::~Selection_Tools() {
    if (g_copy_buffer == &copies) g_copy_buffer = nullptr;
}

Canvas_View& Selection_Tools::canvas() { return editor.canvas(); }

Tile_Selection& Selection_Tools::marks() { return editor.tilesets().selection(); }

int Selection_Tools::mode() const { return g_tool_options ? g_tool_options->selection_mode() : standard; }

bool Selection_Tools::handles(int command) {
    switch (command) {
        case command_deselect:
        case command_invert_selection:
        case command_fill:
        case command_clear:
        case command_copy:
        case command_cut:
        case command_paste:
        case command_clone:
        case command_anti_alias:
            return true;
        default:
            return false;
    }
}

int Selection_Tools::execute(int command) {
    if (!canvas().tile() || !editor.current()) return -1;
    switch (command) {
        case command_deselect: return deselect();
        case command_invert_selection:
            put_down();
            mask_ops::invert(*marks().mask());
            marks().set_active(mask_ops::any_selected(*marks().mask()));
            return record(command);
        case command_fill: return fill(false);
        case command_clear: return fill(true);
        case command_copy: return copy();
        case command_cut: return cut();
        case command_paste: return paste();
        case command_clone: return clone();
        case command_anti_alias: return smooth();
        default: return -1;
    }
}

int Selection_Tools::refuse(const char* why) {
    if (why && g_message_box) g_message_box->note(why);
    return -1;
}

// These commands have no inverse: they record themselves, with the mask and
// any floating image, as soon as they have done their work.
int Selection_Tools::record(int command) {
    editor.undo().record(command);
    return command;
}

std::unique_ptr<Tile> Selection_Tools::selection_image() const {
    Canvas_View& view = editor.canvas();
    const Tile_Selection& marks = view.tile_selection();
    if (const Tile* f = marks.floating_image()) {
        auto image = std::make_unique<Tile>(f->width(), f->height());
        f->copy_into(*image);
        return image;
    }
    if (!marks.active() || !view.tile()) return nullptr;
    return selected_pixels(*view.tile(), *marks.mask());
}

void Selection_Tools::put_down() { marks().commit(canvas().tile()); }

void Selection_Tools::leaving_work_selection() {
    if (editor.undo().replaying() || mode() == persistent) return;
    put_down();
}

// Leaving its tile puts the image down as a step of its own: the records of
// other tiles know nothing of it, so without this step a redo across the
// change of tile would drop the image instead of putting it down.
void Selection_Tools::tile_changing() {
    if (editor.undo().replaying() || mode() == persistent || !marks().float_pending()) return;
    put_down();
    editor.undo().record_put_down();
}

bool Selection_Tools::float_selection(bool lift) {
    Canvas_View& view = canvas();
    Tile* tile = view.tile();
    if (!tile || !marks().active()) return false;
    int x = 0;
    int y = 0;
    std::unique_ptr<Tile> image;
    if (lift) {
        image = floating::lift(*tile, *marks().mask(), x, y);
        tile->update_texture();
    } else {
        image = selected_pixels(*tile, *marks().mask());
        const Rectangle box = mask_ops::bounds(*marks().mask());
        x = box.x;
        y = box.y;
    }
    if (!image) return false;
    marks().clear();
    marks().paste(*image, x, y, view.tile());
    return true;
}

// Space puts a floating image down and drops the selection.
int Selection_Tools::deselect() {
    if (!marks().active() && !marks().float_pending()) return -1;
    put_down();
    marks().clear();
    return record(command_deselect);
}

// Fill in the left tool colour, or Clear to transparent. Clear also throws a
// floating image away. Both change pixels, so the tileset is marked modified.
int Selection_Tools::fill(bool transparent) {
    Canvas_View& view = canvas();
    const int command = transparent ? command_clear : command_fill;
    if (transparent && marks().float_pending()) {
        marks().replace_float(nullptr, 0, 0);
    } else {
        if (!marks().active()) return refuse(transparent ? clear_refused : fill_refused);
        const Color c = transparent ? Color(0, 0, 0, 0) : editor.drawing().refresh().left_color;
        mask_ops::fill_selected(*view.tile(), *marks().mask(), c);
        view.tile()->update_texture();
    }
    return record(command);
}

int Selection_Tools::copy() {
    Canvas_View& view = canvas();
    if (const Tile* f = marks().floating_image()) {
        const SDL_Point at{marks().float_x(), marks().float_y()};
        copies.keep(*f, at.x, at.y, view.tile()->width(), view.tile()->height());
        return command_copy;
    }
    if (!marks().active() || !copies.copy(*view.tile(), *marks().mask())) return refuse(copy_refused);
    return command_copy;
}

int Selection_Tools::cut() {
    Canvas_View& view = canvas();
    if (!marks().active() && !marks().float_pending()) return refuse(cut_refused);
    copy();
    if (marks().float_pending()) {
        marks().replace_float(nullptr, 0, 0);
    } else {
        mask_ops::fill_selected(*view.tile(), *marks().mask(), Color(0, 0, 0, 0));
        view.tile()->update_texture();
    }
    return record(command_cut);
}

// A copy pastes where it was taken from when the tile has the size of the
// one it came from; otherwise the clone style places it.
int Selection_Tools::paste() {
    Canvas_View& view = canvas();
    const Tile* image = copies.current();
    if (!image) return refuse(paste_refused);
    const Tile& tile = *view.tile();
    if (copies.source_tile_width() == tile.width() && copies.source_tile_height() == tile.height()) {
        marks().paste(*image, copies.source().x, copies.source().y, view.tile());
    } else {
        const int style = g_options ? g_options->get(Options::clone_style) : Copy_Buffer::centre;
        const Placement p = copies.place(tile.width(), tile.height(), style);
        marks().paste(*p.image, p.x, p.y, view.tile());
    }
    marks().clear();
    editor.select_tool(command_work_selection);
    editor.undo().record(command_work_selection);
    return command_paste;
}

// A floating image leaves a copy where it stands and keeps floating; a
// selection is copied into a floating image placed by the clone style: where
// the selection stands ("Center clone to image"), at the tile's corner, or
// resized to the tile at its corner.
int Selection_Tools::clone() {
    Canvas_View& view = canvas();
    const int style = g_options ? g_options->get(Options::clone_style) : Copy_Buffer::centre;
    if (const Tile* f = marks().floating_image()) {
        const SDL_Point at{marks().float_x(), marks().float_y()};
        floating::stamp_wrapped(*view.tile(), *f, at.x, at.y);
        view.tile()->update_texture();
    } else if (!marks().active()) {
        return refuse(clone_refused);
    } else if (style == Copy_Buffer::centre) {
        float_selection(false);
    } else {
        const std::unique_ptr<Tile> selected = selected_pixels(*view.tile(), *marks().mask());
        if (!selected) return refuse(clone_refused);
        const Placement p = place_image(*selected, view.tile()->width(), view.tile()->height(), style);
        marks().clear();
        marks().paste(*p.image, 0, 0, view.tile());
    }
    editor.select_tool(command_work_selection);
    return record(command_clone);
}

int Selection_Tools::smooth() {
    Canvas_View& view = canvas();
    put_down();
    if (anti_alias(*view.tile(), marks().active() ? marks().mask() : nullptr) == 0) {
        return refuse(smooth_refused);
    }
    view.tile()->update_texture();
    return record(command_anti_alias);
}
