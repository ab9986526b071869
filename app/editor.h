#pragma once

#include <SDL3/SDL.h>

#include <cstdint>
#include <memory>
#include <string>

#include "model/core/commands.h"
#include "app/position_readout.h"
#include "model/tileset/tileset_list.h"
#include "model/core/rectangle.h"

class Canvas_View;
class Color_Editor;
class Drawing_Tools;
class File_Commands;
struct Command_Line;
class Menu_Bar;
class Selection_Tools;
class Stroke_Action;
class Stroke_Change;
class Tile;
class Tile_Commands;
class Tileset_Tabs;
class Tileset_Navigation;
class Tool_Bar;
class Undo_Control;

// The main editor: the open tilesets, the canvas, the menu bar and the tool
// bar, and the main loop that turns every event into a command or a stroke.
// The whole window is repainted before every wait for an event.
class Editor {
public:
    // The window's layout: the canvas area and what surrounds it.
    static constexpr Rectangle canvas_area{264, 64, 512, 512};
    static constexpr Rectangle background_rects[4] = {
        {0, 0, 264, 632}, {264, 0, 512, 64}, {264, 576, 512, 56}, {776, 0, 455, 632}};
    static constexpr int fresh_tile_size = 24;

    enum Button : uint32_t { button_none = 0, button_left = 1, button_right = 2 };

    Editor();
    ~Editor();
    Editor(const Editor&) = delete;
    Editor& operator=(const Editor&) = delete;

    // The main loop; returns when the quit flag is set or the first tileset
    // cannot be made. A start note is shown over the first frame, then the
    // files named on the command line are opened.
    void run(const std::string& start_note = {}, const Command_Line* given = nullptr);
    // Everything before the first wait: the first tileset and the layout.
    bool begin();
    // The tilesets and the sheet named on the command line, opened as Load
    // opens files; the untouched first tileset gives way to them.
    void open_given(const Command_Line& given);
    // One event routed as the main loop routes it.
    void handle(const SDL_Event& event);
    void repaint(bool present);
    void relayout();
    int execute(int command);
    void run_command(int command);
    void press();
    void select_tool(int command);
    // Makes a copy of the image the stamp brush's temporary brush and chooses
    // the stamp brush; a negative hotspot is the image's middle. False, and
    // nothing changes, for an image of no pixels.
    bool use_as_brush(const Tile& image, int hot_x = -1, int hot_y = -1);

    bool quit_requested() const { return quit; }
    int current_tool() const { return tool; }
    Tileset_List& tilesets() { return open; }
    Tileset* current() { return open.current(); }
    Canvas_View& canvas() { return *canvas_view; }
    Menu_Bar& menus() { return *menu_bar; }
    Tool_Bar& tools() { return *tool_bar; }
    Tileset_Tabs& tabs() { return *tileset_tabs; }
    Color_Editor& colors() { return *color_editor; }
    Drawing_Tools& drawing() { return *drawing_tools; }
    Selection_Tools& selection() { return *selection_tools; }
    Undo_Control& undo() { return *undo_control; }
    const Position_Readout& position() const { return readout; }
    SDL_FPoint pointer() const { return SDL_FPoint{pointer_x, pointer_y}; }
    // The open tileset whose tile the canvas shows, or none.
    Tileset* shown_tileset_if_open() { return open.holds(shown_tileset) ? shown_tileset : nullptr; }
    // The current tileset's navigation pane, if it has one.
    Tileset_Navigation* navigation();
    // The canvas shows the current tileset's current tile.
    void show_current_tile();
    // What a command handler returns when the model refused it: the user is
    // told why (unless why is none), and nothing is recorded.
    static constexpr int command_refused = -2;
    int refuse(const char* why);

    // The stroke a tool runs on the canvas, registered by the folder that
    // owns it under the tool's command; the rectangle and circle have one for
    // each figure type ("Outline", "Filled", ...). None: the tool does nothing there.
    static constexpr int stroke_variants = 3;
    void set_stroke(int tool, Stroke_Action* stroke, int variant = 0);
    Stroke_Action* stroke_for(int tool, int variant = 0) const;

private:
    void after_command(int command);
    void pan_loop();
    void zoom(int direction);
    void follow_pointer();
    const Tile* tile_for_preview();
    void context_info();
    void show_unhandled(int command);
    int move_to_pad();
    int delete_pad_brush();

    Tileset_List open;
    // The tileset whose tile the canvas shows.
    Tileset* shown_tileset = nullptr;
    bool quit = false;
    bool ctrl = false;
    float pointer_x = -1;
    float pointer_y = -1;
    uint32_t button = button_none;
    int tool = 0;
    std::unique_ptr<Menu_Bar> menu_bar;
    std::unique_ptr<Tool_Bar> tool_bar;
    std::unique_ptr<Canvas_View> canvas_view;
    std::unique_ptr<Tileset_Tabs> tileset_tabs;
    std::unique_ptr<Stroke_Change> stroke_change;
    std::unique_ptr<Tile> preview_tile;
    Position_Readout readout;
    Stroke_Action* strokes[command_count][stroke_variants] = {};
    std::unique_ptr<Drawing_Tools> drawing_tools;
    std::unique_ptr<Selection_Tools> selection_tools;
    std::unique_ptr<Undo_Control> undo_control;
    std::unique_ptr<Tile_Commands> tile_commands;
    std::unique_ptr<File_Commands> file_commands;
    std::unique_ptr<Color_Editor> color_editor;
};

extern Editor* g_editor;
