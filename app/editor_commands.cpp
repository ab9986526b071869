// The single dispatcher: every key, menu entry, tool button and strip click
// ends here as a command number.
#include <string>
#include <vector>

#include "features/brushpad/brush_pad_pane.h"
#include "app/canvas_view.h"
#include "model/core/commands.h"
#include "platform/debug_log.h"
#include "features/color/edit_hsv_dialog.h"
#include "app/editor.h"
#include "app/file_commands.h"
#include "app/tile_commands.h"
#include "platform/globals.h"
#include "platform/main_window.h"
#include "app/prompt_dialogs.h"
#include "app/stroke_change.h"
#include "app/tile_views.h"
#include "app/tool_bar.h"
#include "app/tool_options.h"
#include "app/undo_control.h"
#include "features/color/color_editor.h"
#include "model/tileset/tile_list_undo_node.h"
#include "model/tile/transforms.h"
#include "app/selection/selection_tools.h"
#include "ui/message_box.h"
#include "ui/options.h"
#include "ui/ui_globals.h"
#include "features/viewers/command_lists.h"

int Editor::execute(int command) {
    if (command < 0 || command >= command_count) return -1;
    if (commands::seam_off(command)) {
        // The tile may be about to go: a floating image is put down first.
        selection_tools->tile_changing();
        canvas_view->end_seams();
    }
    int result = command;
    if (commands::is_tool(command)) {
        select_tool(command);
    } else if (Selection_Tools::handles(command)) {
        result = selection_tools->execute(command);
    } else {
        switch (command) {
            case command_horizontal_seam_tool:
                tile_commands->switch_seam(true);
                break;
            case command_vertical_seam_tool:
                tile_commands->switch_seam(false);
                break;
            // Carried out already by the strip that produced them, or with no
            // action of their own in this version.
            case command_change_tile:
            case command_select_tile:
            case command_import_from_bmp:
                break;
            // It does nothing, so it must not be recorded: its inverse would
            // delete a real tile on undo.
            case command_append_tile:
                result = -1;
                break;
            case command_close:
                file_commands->close_current();
                break;
            case command_new:
                file_commands->new_tileset();
                break;
            case command_load:
                file_commands->load();
                break;
            case command_export:
                file_commands->export_sheet();
                break;
            case command_save_as:
                file_commands->save(true);
                break;
            case command_save:
                file_commands->save(false);
                break;
            case command_quit:
                if (Prompt_Dialogs::confirm_quit(!open.any_modified())) quit = true;
                break;
            // Choosing a tile in it is recorded like a click on the strip.
            case command_view_in_real_size:
                result = open.current() ? view_in_real_size(*open.current()) : -1;
                break;
            case command_statistics:
                if (open.current()) g_message_box->show_statistics(open.current()->statistics_text());
                break;
            case command_options:
                g_options->edit();
                relayout();
                break;
            case command_context_info:
                context_info();
                break;
            case command_about:
                g_message_box->show_about();
                break;
            case command_keyboard_commands:
                show_keyboard_commands();
                break;
            case command_mouse_commands:
                show_mouse_commands();
                break;
            case command_debug_monitor:
                g_debug_log->show(*g_main_window);
                break;
            case command_swap_tool_colors:
                g_tool_options->color_tools().swap_colors();
                break;
            case command_select_brush_size_1:
            case command_select_brush_size_2:
            case command_select_brush_size_3:
            case command_select_brush_size_4:
            case command_select_brush_size_5:
            case command_select_brush_size_6:
                g_tool_options->select_brush_size(command - command_select_brush_size_1 + 1);
                break;
            // The tool bar's filled shapes: the shape tool with its "Filled" type.
            case command_filled_rectangle:
                g_tool_options->set_rectangle_type(1);
                select_tool(command_rectangle);
                break;
            case command_filled_circle:
                g_tool_options->set_ellipse_type(1);
                select_tool(command_circle);
                break;
            case command_use_as_brush:
                // The selection (or the floating image) becomes the stamp brush's temporary brush.
                if (const std::unique_ptr<Tile> image = selection_tools->selection_image(); !image || !use_as_brush(*image)) {
                    refuse("Nothing selected to use as brush.");
                    return -1;
                }
                // The selection would clip every stamp to where the brush came
                // from: it goes (a recorded deselect), so the brush stamps anywhere.
                selection_tools->execute(command_deselect);
                break;
            case command_move_to_pad:
                if (move_to_pad() == command_refused) return -1;
                break;
            case command_delete_brush:
                if (delete_pad_brush() == command_refused) return -1;
                break;
            case command_color_editor:
                color_editor->run(g_tool_options->tool_color(0));
                break;
            case command_adjust_hsv:
                // An image change with no inverse: it records itself, when it changed something.
                stroke_change->take(*canvas_view);
                if (canvas_view->tile() && edit_hsv(*canvas_view->tile()) && stroke_change->changed(*canvas_view))
                    undo_control->record(command);
                else
                    result = -1;
                break;
            case command_test:
                g_debug_log->log("Test: %d tilesets open", open.count());
                break;
            default:
                result = tile_commands->execute(command);
                if (result == command_refused) return -1;
                if (result < 0) {
                    show_unhandled(command);
                    return -1;
                }
                break;
        }
    }
    after_command(result);
    return result;
}

// A command the model refuses changes nothing and records nothing; the user
// is told why, unless the refusal is part of an undo that still does its work.
int Editor::refuse(const char* why) {
    if (why) g_message_box->note(why);
    return command_refused;
}

void Editor::show_unhandled(int command) {
    const std::string text = std::string("Unhandled command ") + commands::name(command);
    g_message_box->note(text.c_str());
}

// The tileset's bookkeeping after a command: the canvas and the strip follow
// the current tile, and the history pen's saved copy and the selection are
// refreshed. Rewinding and forwarding the strip move the tile too.
void Editor::after_command(int command) {
    if (command < 0 || !open.current()) return;
    const int group = commands::group(command);
    const bool scrolls = commands::scrolls_strip_after(command);
    if (group == group_tile_list || group == group_current_tile || scrolls) show_current_tile();
    if (scrolls) open.current()->strip().make_current_visible();
    if (commands::resets_selection_after(command) && g_options && g_options->is_on(Options::clear_selection))
        open.selection().clear();
    if (commands::saves_copy_after(command)) canvas_view->save_copy();
}

// F1: help for the tool button under the pointer; anywhere else the
// statistics, as it has always been.
void Editor::context_info() {
    const SDL_Point p = g_main_window->mouse_position();
    const int command = tool_bar->command_at(p.x, p.y);
    if (command >= 0) {
        char title[128];
        commands::caption(command, title, sizeof title);
        g_message_box->show_message(title, commands::help(command));
    } else if (open.current()) {
        g_message_box->show_statistics(open.current()->statistics_text());
    }
}

// The pad keeps the user's brushes across sessions, not the tileset's
// history: its changes are not undo records.
int Editor::move_to_pad() {
    if (tool != command_stamp_brush) return refuse("Select stamp brush tool to copy the current brush to the pad.");
    switch (g_tool_options->brush_pad().move_to_pad(&g_tool_options->brush())) {
        case Brush_Pad::Add_Result::added: return command_move_to_pad;
        case Brush_Pad::Add_Result::unusable: return refuse("Unable to add a new brush for some reason.");
        default:
            return refuse(
                "Failed to add brush to pad. Either it's already there,\rthere is no current brush or the pad is full.");
    }
}

int Editor::delete_pad_brush() {
    if (tool != command_stamp_brush) return refuse("Select stamp brush tool to delete the current brush.");
    if (!g_tool_options->brush_pad().delete_selected())
        return refuse("There is no brush selected to delete from the pad.");
    return command_delete_brush;
}

bool Editor::use_as_brush(const Tile& image, int hot_x, int hot_y) {
    if (!g_tool_options->brush_pad().take_temporary(image, hot_x, hot_y)) return false;
    select_tool(command_stamp_brush);
    return true;
}
