#include "app/editor.h"

#include <algorithm>
#include <iterator>

#include "app/canvas_view.h"
#include "app/file_commands.h"
#include "app/tile_commands.h"
#include "model/selection/floating.h"
#include "model/core/commands.h"
#include "platform/frame_cache.h"
#include "platform/globals.h"
#include "platform/main_window.h"
#include "app/stroke_action.h"
#include "app/stroke_change.h"
#include "app/strokes/drawing_tools.h"
#include "app/tile_navigation_pane.h"
#include "app/tileset_tabs.h"
#include "app/tool_bar.h"
#include "app/tool_options.h"
#include "app/tool_options_link.h"
#include "platform/ui_colors.h"
#include "app/undo_control.h"
#include "features/color/color_editor.h"
#include "app/selection/selection_tools.h"
#include "ui/backdrop.h"
#include "ui/menu_bar.h"
#include "ui/message_box.h"
#include "ui/options.h"
#include "ui/pane.h"
#include "ui/preview_pane.h"
#include "ui/ui_globals.h"
#include "platform/wait_for_key.h"

Editor* g_editor = nullptr;

namespace {
void paint_editor(void* editor) { static_cast<Editor*>(editor)->repaint(false); }

// Shift wins over Ctrl and Ctrl over Alt, so Ctrl+Shift+S reads as Shift+S.
int modifier_class(SDL_Keymod mod) {
    if (mod & SDL_KMOD_SHIFT) return modifier_shift;
    if (mod & SDL_KMOD_CTRL) return modifier_ctrl;
    if (mod & SDL_KMOD_ALT) return modifier_alt;
    return modifier_none;
}

// A modifier pressed alone matches no keyed command.
SDL_Keycode key_code(SDL_Keycode key) {
    switch (key) {
        case SDLK_LSHIFT:
        case SDLK_RSHIFT:
        case SDLK_LCTRL:
        case SDLK_RCTRL:
        case SDLK_LALT:
        case SDLK_RALT:
            return 0;
        default:
            return key;
    }
}

// The parts of the rectangle outside the hole, appended at out; returns the new end.
Rectangle* around(const Rectangle& r, const Rectangle& hole, Rectangle* out) {
    const Rectangle common = r.intersection(hole);
    if (common.empty()) {
        *out++ = r;
        return out;
    }
    const int left = common.x;
    const int top = common.y;
    const int right = common.x + common.width;
    const int bottom = common.y + common.height;
    *out++ = Rectangle{r.x, r.y, r.width, top - r.y};
    *out++ = Rectangle{r.x, bottom, r.width, r.y + r.height - bottom};
    *out++ = Rectangle{r.x, top, left - r.x, bottom - top};
    *out++ = Rectangle{right, top, r.x + r.width - right, bottom - top};
    return out;
}

uint32_t button_code(Uint8 sdl_button) {
    if (sdl_button == SDL_BUTTON_LEFT) return Editor::button_left;
    if (sdl_button == SDL_BUTTON_RIGHT) return Editor::button_right;
    return Editor::button_none;
}
}  // namespace

Editor::Editor()
    : menu_bar(std::make_unique<Menu_Bar>()),
      tool_bar(std::make_unique<Tool_Bar>(0, 32, 0)),
      canvas_view(std::make_unique<Canvas_View>(canvas_area, ui_colors[background_color_index], open.selection())),
      tileset_tabs(std::make_unique<Tileset_Tabs>(Rectangle{264, 30, 512, 30})),
      stroke_change(std::make_unique<Stroke_Change>()) {
    // Nested loops paint through the backdrop, whose base is this editor.
    canvas_view->repaint = [] {
        Backdrop::paint();
        g_main_window->present();
    };
    canvas_view->seam_released = [this](bool horizontal) { tool_bar->set_seam(horizontal, false); };
    canvas_view->pointer_moved = [this](float x, float y) {
        pointer_x = x;
        pointer_y = y;
        follow_pointer();
    };
    open.set_window_title = [](const std::string& name) { g_main_window->set_title(name); };
    open.confirm_close = [] {
        return g_message_box->ask("Close", "Current tileset is not saved. Close it anyway?\r(Progress will be lost.)");
    };
    open.current_changed = [this](Tileset&) { show_current_tile(); };
    // Its tiles go with it: a floating image is put down first (or, kept
    // floating, goes to the next tileset) and the canvas lets go of the tile.
    open.closing = [this](Tileset& closed) {
        if (shown_tileset != &closed) return;
        selection_tools->tile_changing();
        canvas_view->set_tile(nullptr);
        shown_tileset = nullptr;
    };
    Backdrop::set_base(paint_editor, this);
    // Every tileset made from here on gets its navigation pane.
    set_tileset_navigation_maker(make_tile_navigation_pane);
    drawing_tools = std::make_unique<Drawing_Tools>(*this);
    selection_tools = std::make_unique<Selection_Tools>(*this);
    link_tool_options(drawing_tools->context());
    color_editor = std::make_unique<Color_Editor>();
    undo_control = std::make_unique<Undo_Control>(*this);
    tile_commands = std::make_unique<Tile_Commands>(*this);
    file_commands = std::make_unique<File_Commands>(*this);
}

Editor::~Editor() {
    Backdrop::set_base(nullptr, nullptr);
    tool_bar.reset();
    menu_bar.reset();
    color_editor.reset();
    canvas_view.reset();
    open.destroy_all();
    set_tileset_navigation_maker(nullptr);
}

bool Editor::begin() {
    if (!open.new_tileset(fresh_tile_size, fresh_tile_size)) return false;
    relayout();
    return true;
}

void Editor::open_given(const Command_Line& given) { file_commands->open_given(given); }

void Editor::run(const std::string& start_note, const Command_Line* given) {
    if (!begin()) return;
    if (!start_note.empty()) {
        repaint(true);
        g_message_box->note(start_note.c_str());
    }
    if (given) open_given(*given);
    SDL_Event event;
    while (!quit) {
        repaint(true);
        if (!wait_event(event)) break;
        handle(event);
    }
}

void Editor::handle(const SDL_Event& event) {
    switch (event.type) {
        case SDL_EVENT_MOUSE_MOTION:
            pointer_x = event.motion.x;
            pointer_y = event.motion.y;
            if (!canvas_view->contains(pointer_x, pointer_y) && g_tool_options)
                g_tool_options->hover(int(pointer_x), int(pointer_y));
            if (Tileset_Navigation* n = navigation()) n->hover(int(pointer_x), int(pointer_y));
            follow_pointer();
            break;
        case SDL_EVENT_MOUSE_BUTTON_DOWN:
            pointer_x = event.button.x;
            pointer_y = event.button.y;
            button = button_code(event.button.button);
            if (ctrl && button == button_right) {
                ctrl = false;
                pan_loop();
            } else if (button != button_none) {
                press();
            }
            break;
        case SDL_EVENT_MOUSE_BUTTON_UP:
            if (Tileset_Navigation* n = navigation()) n->release();
            break;
        case SDL_EVENT_MOUSE_WHEEL:
            if (event.wheel.y > 0)
                zoom(1);
            else if (event.wheel.y < 0)
                zoom(-1);
            break;
        case SDL_EVENT_KEY_DOWN: {
            const int modifier = modifier_class(event.key.mod);
            if (modifier == modifier_ctrl) ctrl = true;
            const int command = commands::find_key(key_code(event.key.key), modifier);
            if (command >= 0) run_command(command);
            break;
        }
        case SDL_EVENT_KEY_UP:
            ctrl = false;
            break;
        case SDL_EVENT_QUIT:
            execute(command_quit);
            break;
        default:
            break;
    }
}

// Each part of the window is its own group of the kept frame: a change in one
// part draws again only where that part was and is.
void Editor::repaint(bool present) {
    Main_Window& w = *g_main_window;
    Frame_Cache& frame = w.frame_cache();
    frame.begin();
    canvas_view->draw(w);
    frame.next_group();
    // The backgrounds frame the canvas before the panes are drawn over them,
    // so nothing to the right of the canvas is painted over.
    // Where the tool options pane's opaque body lies over the right column the
    // background would only be painted over: it is left out there.
    Rectangle body{};
    if (g_tool_options) {
        body = g_tool_options->outer_area();
        body.y += Pane::header_height;
        body.height -= Pane::header_height;
    }
    Rectangle pieces[std::size(background_rects) * 4 + 2];
    Rectangle* end = pieces;
    for (const Rectangle& r : background_rects) end = around(r, body, end);
    // The rows below 632 and the window's last column belong to no rectangle.
    *end++ = Rectangle{0, 632, int(w.width()), int(w.height()) - 632};
    *end++ = Rectangle{1231, 0, int(w.width()) - 1231, 632};
    w.fill_opaque(pieces, int(end - pieces), ui_colors[background_color_index]);
    frame.next_group();
    if (g_tool_options) g_tool_options->draw();
    frame.next_group();
    menu_bar->draw(SDL_Point{int(pointer_x), int(pointer_y)});
    frame.next_group();
    tool_bar->draw();
    frame.next_group();
    if (g_message_box) {
        Tileset* t = current();
        if (t && t->map().in_preview)
            g_message_box->preview().draw_map(t->map(), t->store(), tile_for_preview(), t->store().current_index());
        else
            g_message_box->preview().draw_tile(tile_for_preview());
    }
    frame.next_group();
    undo_control->draw_meter();
    frame.next_group();
    tileset_tabs->draw(open);
    frame.next_group();
    readout.draw();
    frame.next_group();
    if (Tileset_Navigation* n = navigation()) n->draw();
    frame.next_group();
    if (g_tool_options) g_tool_options->draw_overlays(*canvas_view, pointer_x, pointer_y);
    frame.finish();
    if (present) w.present();
}

void Editor::relayout() {
    const int pixel_size = g_options ? g_options->get(Options::editor_pixel_size) + 3 : 13;
    canvas_view->set_pixel_size(pixel_size);
    if (g_options) {
        canvas_view->set_grid_contrast(g_options->get(Options::grid_intensity));
        canvas_view->set_checker_size(g_options->get(Options::alpha_grid_width),
                                      g_options->get(Options::alpha_grid_height));
        if (g_message_box) {
            Preview_Pane& preview = g_message_box->preview();
            preview.set_repeats(g_options->get(Options::repeat_x_tiles), g_options->get(Options::repeat_y_tiles));
            preview.set_checker_size(g_options->get(Options::alpha_grid_width),
                                     g_options->get(Options::alpha_grid_height));
        }
    }
    canvas_view->centre();
}

// Another tile: a floating image is put down on the one it floated over
// first, and with "Clear selection when another tile selected" on the
// selection goes.
// In "Persistent" mode an image floating over another tileset's tile goes
// along; each history then holds its side: the image left the one and
// arrived in the other, so undo in either tab gives back what it showed.
void Editor::show_current_tile() {
    Tileset* t = open.current();
    Tile* next = t ? t->store().current_tile() : nullptr;
    Tileset* from = open.holds(shown_tileset) ? shown_tileset : nullptr;
    const bool carried = open.selection().float_pending() && from != t && !undo_control->replaying() &&
                         selection_tools->mode() == Selection_Tools::persistent;
    if (next != canvas_view->tile()) {
        if (carried && from) undo_control->record_float_left(*from);
        selection_tools->tile_changing();
        if (g_options && g_options->is_on(Options::clear_selection)) open.selection().clear();
    }
    canvas_view->set_tile(next);
    shown_tileset = t;
    if (carried && t && open.selection().float_pending()) undo_control->record(command_work_selection);
}

void Editor::run_command(int command) {
    const int result = execute(command);
    if (result < 0 || !open.current()) return;
    // Commands without an inverse that change the tile record themselves, and
    // so do the changes of the tile list, which hold what they changed.
    if (commands::group(result) != group_tile_list) undo_control->record_if_inverse(result);
}

void Editor::set_stroke(int tool, Stroke_Action* stroke, int variant) {
    if (tool >= 0 && tool < command_count && variant >= 0 && variant < stroke_variants)
        strokes[tool][variant] = stroke;
}

Stroke_Action* Editor::stroke_for(int tool, int variant) const {
    if (tool < 0 || tool >= command_count || variant < 0 || variant >= stroke_variants) return nullptr;
    return strokes[tool][variant];
}

void Editor::press() {
    const int x = int(pointer_x);
    const int y = int(pointer_y);
    if (canvas_view->contains(pointer_x, pointer_y)) {
        const Tool_Settings& settings = drawing_tools->refresh();
        const int variant = tool == command_rectangle ? settings.rectangle_type
                            : tool == command_circle  ? settings.ellipse_type
                                                      : 0;
        Stroke_Action* stroke = stroke_for(tool, variant);
        if (stroke && canvas_view->tile()) {
            stroke_change->take(*canvas_view);
            canvas_view->press(*stroke, int(button), pointer_x, pointer_y);
            // "Work selection" is a step only when the press moved something.
            const bool step = tool == command_work_selection ? stroke->completed() : stroke_change->changed(*canvas_view);
            if (step) undo_control->record(tool);
            return;
        }
    }
    const int pane_button = button == button_right ? 1 : 0;
    if (g_tool_options && g_tool_options->outer_area().contains(x, y) && g_tool_options->click(pane_button, x, y))
        return;
    if (button == button_left) {
        const int command = tool_bar->command_at(x, y);
        if (command >= 0) {
            run_command(command);
            return;
        }
    }
    // The strip changes the tile itself; "Change tile" says there is nothing
    // more to run.
    int command = -1;
    if (Tileset_Navigation* n = navigation()) command = n->press(x, y, button == button_left);
    if (command == command_change_tile) return;
    const int menu = command < 0 ? menu_bar->menu_at(SDL_Point{x, y}) : -1;
    if (menu >= 0) command = menu_bar->track(SDL_Point{x, y}, menu);
    if (command >= 0) {
        pointer_x = -1;
        pointer_y = -1;
        repaint(true);
        run_command(command);
        return;
    }
    if (tileset_tabs->click(open, x, y)) relayout();
    // The colour panes and the tile colour button stand outside the pane's
    // own rectangle, in the left column.
    if (!g_tool_options) return;
    const int pane_command = g_tool_options->command_at(x, y);
    if (pane_command >= 0 && button == button_left)
        run_command(pane_command);
    else if (!g_tool_options->outer_area().contains(x, y))
        g_tool_options->click(pane_button, x, y);
}

void Editor::select_tool(int command) {
    if (command == tool) return;
    // Choosing "Work selection" keeps the selection: it is what the tool moves.
    if (tool == command_work_selection) selection_tools->leaving_work_selection();
    tool_bar->press_tool(command);
    tool = command;
    // The pane keeps the current and the previous tool for everyone else.
    if (g_tool_options) g_tool_options->set_tool(command);
}

// Ctrl and the right button drag the canvas; a quit that ends the drag is
// taken by it and does not end the program.
void Editor::pan_loop() {
    SDL_Event event;
    bool primed = false;
    for (;;) {
        Backdrop::paint();
        g_main_window->present();
        if (!wait_event(event)) break;
        if (event.type == SDL_EVENT_MOUSE_BUTTON_UP || event.type == SDL_EVENT_QUIT) break;
        if (event.type != SDL_EVENT_MOUSE_MOTION) continue;
        float dx = 0;
        float dy = 0;
        SDL_GetRelativeMouseState(&dx, &dy);
        if (!primed) {
            primed = true;
            continue;
        }
        // Pushed or synthetic motion carries its own movement.
        if (dx == 0 && dy == 0) {
            dx = event.motion.xrel;
            dy = event.motion.yrel;
        }
        canvas_view->pan(int(dx), int(dy));
        // Where the pointer is, for the read-out and the brush outline after the pan.
        pointer_x = event.motion.x;
        pointer_y = event.motion.y;
    }
    flush_events();
}

// The tile as it will be when a floating image is put down, so the preview
// shows no hole where a lifted image came from; kept between repaints.
const Tile* Editor::tile_for_preview() {
    const Tile* tile = canvas_view->tile();
    const Tile_Selection& marks = open.selection();
    const Tile* image = marks.floating_image();
    if (!tile || !image || !marks.float_pending()) return tile;
    if (!preview_tile || !preview_tile->same_size(*tile)) preview_tile = std::make_unique<Tile>(tile->width(), tile->height());
    tile->copy_into(*preview_tile);
    floating::stamp_wrapped(*preview_tile, *image, marks.float_x(), marks.float_y());
    return preview_tile.get();
}

// Over the tile the readout follows the pointer; elsewhere it is hidden.
void Editor::follow_pointer() {
    const Tile* tile = canvas_view->tile();
    const Cell cell = canvas_view->cell_at(pointer_x, pointer_y);
    if (tile && canvas_view->contains(pointer_x, pointer_y) && !tile->is_outside(cell.x, cell.y))
        readout.show(cell.x, cell.y, open.current()->store().current_index());
    else
        readout.hide();
}

void Editor::zoom(int direction) { canvas_view->zoom(direction); }

Tileset_Navigation* Editor::navigation() {
    Tileset* t = open.current();
    return t ? t->navigation() : nullptr;
}
