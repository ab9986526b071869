#include "app/tool_options.h"

#include "features/brushpad/brush_pad_pane.h"
#include "app/canvas_view.h"
#include "features/color/color_readout.h"
#include "model/paint/brush_stamp.h"
#include "model/core/commands.h"
#include "app/editor.h"
#include "platform/globals.h"
#include "platform/main_window.h"
#include "features/selection/buffer_pane.h"
#include "ui/info_panes.h"
#include "ui/options.h"
#include "ui/setting_panes.h"
#include "platform/text_writer.h"
#include "ui/textlist_dialog_item.h"
#include "ui/ui_globals.h"
#include "ui/ui_style.h"

Tool_Options_Pane* g_tool_options = nullptr;

using namespace tool_pages;

namespace {
constexpr Rectangle row_rect{0, 0, Tool_Options_Pane::row_width, Tool_Options_Pane::row_height};
constexpr const char* shape_types = "Outline,Filled,Filled & Outline$";
constexpr const char* adjust_label = "Adjust HSV";

int swatch_stack_height() {
    return 2 * (Tool_Color::body_height + Pane::header_height) + Color_Handles::body_height + Pane::header_height +
           2 * Color_Tools::gap;
}

// The selection page shows the copy buffer below its rows.
bool is_selection_page(int page) { return page == commands::tool_options_index(command_work_selection); }

// The selector and selection pages do not show the tool colour panes, yet
// "Fill" paints the selection in the left tool colour: these pages show it.
bool shows_fill_color(int page) {
    for (int tool : {command_rectangle_selector, command_circle_selector, command_brush_selector,
                     command_wand_selector, command_work_selection})
        if (page == commands::tool_options_index(tool)) return true;
    return false;
}

bool is_dialog_row(int id) {
    return id != row_color_readout && id != row_location && id != row_size && id != row_radius && id != row_length &&
           id != row_degrees && id != row_offset;
}
}  // namespace

Tool_Options_Pane::Tool_Options_Pane(int x, int y) : Pane(Rectangle{x, y, width, height}, pages[0].name) {
    const int bottom = client.y + client.height;
    colors = std::make_unique<Color_Tools>(SDL_Point{client.x, bottom - swatch_stack_height()}, mixers_corner);
    colors->color_changed = [this](int index, Color c) { tool_color_changed(index, c); };
    g_color_tools = colors.get();
    brush_selector = std::make_unique<Brush_Selector>();

    auto readout = std::make_unique<Color_Readout>(row_rect, "Color");
    color_row = readout.get();
    rows[row_color_readout] = std::move(readout);
    rows[row_previous_tool] = std::make_unique<Tick_Pane>(row_rect, "Mode", "Select previous tool", false);
    rows[row_colorize_type] = std::make_unique<Option_Pane>(row_rect, "Type", "Linear,Luma$", 0);
    auto pair = [&](int id, const char* title, Location_Info*& keep) {
        auto p = std::make_unique<Location_Info>(row_rect, title);
        keep = p.get();
        rows[size_t(id)] = std::move(p);
    };
    auto single = [&](int id, const char* title, Number_Info*& keep) {
        auto p = std::make_unique<Number_Info>(row_rect, title);
        keep = p.get();
        rows[size_t(id)] = std::move(p);
    };
    pair(row_location, "Location", location_row);
    pair(row_size, "Size", size_row);
    rows[row_right_button_mode] = std::make_unique<Option_Pane>(row_rect, "Right button mode", "Color,History,Dropper$", 0);
    pair(row_radius, "Radius X, Y", radius_row);
    single(row_length, "Length", length_row);
    single(row_degrees, "Degrees", degrees_row);
    pair(row_offset, "Offset", offset_row);
    rows[row_rectangle_type] = std::make_unique<Option_Pane>(row_rect, "Type", shape_types, 0);
    rows[row_ellipse_type] = std::make_unique<Option_Pane>(row_rect, "Type", shape_types, 0);
    rows[row_lightness_mode] = std::make_unique<Option_Pane>(row_rect, "Mode", "Linear (washed),Perception (warm)$", 0);
    rows[row_button_order] =
        std::make_unique<Option_Pane>(row_rect, "Button order", "L:Lighten - R:Darken,L:Darken - R:Lighten$", 0);
    rows[row_speed] = std::make_unique<Option_Pane>(
        row_rect, "Speed", "Extremely slow,Very slow,Slow,Moderate,Fast,Very fast,Extremely fast$", 3);
    rows[row_size_compensation] = std::make_unique<Tick_Pane>(row_rect, "Speed", "Size compensation", false);
    rows[row_selection_mode] = std::make_unique<Option_Pane>(row_rect, "Mode", "Standard,Persistent,Fixed$", 0);
    rows[row_stamp_mode] = std::make_unique<Option_Pane>(row_rect, "Mode", "Brush,Pattern$", 0);

    // The rows' entries are long; the pane font keeps them inside the 202 pixels.
    for (int id = 0; id < row_count; ++id)
        if (is_dialog_row(id))
            for (const auto& r : static_cast<Dialog_Pane&>(*rows[size_t(id)]).container().rows())
                r->set_writer(&g_main_window->writer(font_pane));
    buffer = std::make_unique<Buffer_Pane>();
    fill_color = std::make_unique<Pane>(Rectangle{0, 0, fill_color_width, fill_color_height}, "Fill");
    pad = std::make_unique<Brush_Pad_Pane>(x + pad_offset, client.y);
    const Rectangle mixers = colors->mixer_stack();
    adjust_area = Rectangle{mixers.x, mixers.y + mixers.height + Color_Tools::gap, 110, 27};
    layout_page();
    // Black on the left button and white on the right, with a red square to
    // pick shades from; the left colour is the selected one.
    colors->set_tool_color(1, Color(255, 255, 255));
    colors->set_tool_color(0, Color(0, 0, 0));
    colors->selector().set_hue_color(Color(255, 0, 0));
}

Tool_Options_Pane::~Tool_Options_Pane() {
    if (g_color_tools == colors.get()) g_color_tools = nullptr;
}

void Tool_Options_Pane::set_tool(int tool) {
    if (tool != current_tool) {
        last_tool = current_tool;
        current_tool = tool;
    }
    const int slot = brush_slot(tool);
    if (slot >= 0) brush_selector->set_brush(slots[size_t(slot)].shape, slots[size_t(slot)].size);
    brush_selector->set_color(tool_color(0), commands::brush_mode(tool));
    const int page = commands::tool_options_index(tool);
    if (page >= 0) show_page(page);
}

void Tool_Options_Pane::show_page(int page) {
    if (page < 0 || page >= page_count) return;
    if (page != current_page) set_title(pages[page].name);
    current_page = page;
    layout_page();
}

// Each part of the page is placed below the one before; rows that the page
// does not show keep their last place.
void Tool_Options_Pane::layout_page() {
    const Page& p = pages[current_page];
    int y = client.y;
    auto place = [&](int id) {
        Pane& r = *rows[size_t(id)];
        r.set_position(client.x, y);
        if (is_dialog_row(id)) static_cast<Dialog_Pane&>(r).layout_rows();
        y += r.outer_area().height + row_gap;
    };
    if (p.type_row >= 0) place(p.type_row);
    if (p.brush) y = brush_selector->place(client.x, y);
    if (p.location) place(row_location);
    for (int i = 0; i < p.row_count; ++i) place(p.rows[i]);
    if (shows_fill_color(current_page)) {
        fill_color->set_position(client.x, y);
        y += fill_color->outer_area().height + row_gap;
    }
    if (is_selection_page(current_page)) buffer->place(client.x, y);
}

void Tool_Options_Pane::draw() {
    Main_Window& w = *g_main_window;
    Pane::draw();
    const Page& p = pages[current_page];
    w.next_group();
    if (p.type_row >= 0) rows[size_t(p.type_row)]->draw();
    w.next_group();
    if (p.tool_colors) colors->draw();
    w.next_group();
    if (p.brush) {
        brush_selector->draw();
        // The brush button under the pointer is outlined.
        for (int k = 1; k <= 7; ++k) {
            const Rectangle s = brush_selector->shape_button(k - 1);
            const Rectangle z = brush_selector->size_button(k);
            if (s.contains(pointer.x, pointer.y)) w.frame(s, ui_colors[ui_cyan]);
            if (k <= 6 && z.contains(pointer.x, pointer.y)) w.frame(z, ui_colors[ui_cyan]);
        }
    }
    w.next_group();
    if (p.location) rows[row_location]->draw();
    for (int i = 0; i < p.row_count; ++i) rows[size_t(p.rows[i])]->draw();
    w.next_group();
    if (shows_fill_color(current_page)) {
        fill_color->draw();
        w.fill_rect(fill_color->client_area(), tool_color(0));
    }
    if (is_selection_page(current_page)) buffer->draw();
    w.next_group();
    pad->draw(&brush());
    w.bevel_fill(adjust_area, button_face_color);
    Text_Writer& label = w.writer(font_regular);
    label.write_at(adjust_area.x + (adjust_area.width - label.measure(adjust_label)) / 2,
                   adjust_area.y + (adjust_area.height - label.line_height()) / 2, adjust_label);
}

void Tool_Options_Pane::hover(int x, int y) { pointer = SDL_Point{x, y}; }

bool Tool_Options_Pane::click_row(int id, int x, int y) {
    if (!is_dialog_row(id)) return false;
    return static_cast<Dialog_Pane&>(*rows[size_t(id)]).press(x, y);
}

bool Tool_Options_Pane::click(int button, int x, int y) {
    const Page& p = pages[current_page];
    if (p.tool_colors && colors->mouse_down(button, x, y)) return true;
    if (p.brush) {
        if (brush_selector->click_shape(x, y) || brush_selector->click_size(x, y)) {
            store_brush_slot();
            return true;
        }
        // Not drawn on every brush page, but it takes clicks on all but the
        // lightness pen's, where it last stood.
        if (current_page != 1 && click_row(row_right_button_mode, x, y)) return true;
    }
    if (p.clickable) {
        if (p.type_row >= 0 && click_row(p.type_row, x, y)) return true;
        for (int i = 0; i < p.row_count; ++i)
            if (click_row(p.rows[i], x, y)) return true;
    }
    if (pad->click(x, y)) {
        // A brush picked on the pad is meant to be stamped with.
        if (pad->take_picked() && current_tool != command_stamp_brush && g_editor)
            g_editor->select_tool(command_stamp_brush);
        return true;
    }
    // What no row takes on the selection page goes to the copy buffer.
    if (is_selection_page(current_page)) return buffer->click(x, y);
    return false;
}

int Tool_Options_Pane::command_at(int x, int y) const {
    return adjust_area.contains(x, y) ? int(command_adjust_hsv) : -1;
}

void Tool_Options_Pane::tool_color_changed(int index, Color c) {
    color_row->set(c);
    if (index == 0) brush_selector->set_color(c, commands::brush_mode(current_tool));
}

void Tool_Options_Pane::store_brush_slot() {
    const int slot = brush_slot(current_tool);
    if (slot >= 0) slots[size_t(slot)] = Slot{brush_selector->shape(), brush_selector->size()};
}

const Tile& Tool_Options_Pane::stamp_image() const {
    const Brush_Pad_Pane::Stamp s = pad->current();
    return s.image ? *s.image : static_cast<const Tile&>(brush());
}

SDL_Point Tool_Options_Pane::stamp_hotspot() const {
    const Brush_Pad_Pane::Stamp s = pad->current();
    return s.image ? SDL_Point{s.hot_x, s.hot_y} : SDL_Point{-1, -1};
}

void Tool_Options_Pane::select_brush_size(int size) { select_brush(brush_selector->shape(), size); }

void Tool_Options_Pane::select_brush(int shape, int size) {
    brush_selector->set_brush(shape, size);
    store_brush_slot();
}

int Tool_Options_Pane::choice(int id) const {
    const Pane& r = *rows[size_t(id)];
    if (id == row_previous_tool || id == row_size_compensation) return static_cast<const Tick_Pane&>(r).value();
    return static_cast<const Option_Pane&>(r).value();
}

int Tool_Options_Pane::right_button_mode() const { return choice(tool_pages::row_right_button_mode); }
int Tool_Options_Pane::colorize_type() const { return choice(tool_pages::row_colorize_type); }
int Tool_Options_Pane::rectangle_type() const { return choice(tool_pages::row_rectangle_type); }
int Tool_Options_Pane::ellipse_type() const { return choice(tool_pages::row_ellipse_type); }
int Tool_Options_Pane::lightness_mode() const { return choice(tool_pages::row_lightness_mode); }
int Tool_Options_Pane::button_order() const { return choice(tool_pages::row_button_order); }
int Tool_Options_Pane::speed() const { return choice(tool_pages::row_speed); }
bool Tool_Options_Pane::size_compensation() const { return choice(tool_pages::row_size_compensation) == 1; }
bool Tool_Options_Pane::select_previous_tool() const { return choice(tool_pages::row_previous_tool) == 1; }
int Tool_Options_Pane::selection_mode() const { return choice(tool_pages::row_selection_mode); }
int Tool_Options_Pane::stamp_mode() const { return choice(tool_pages::row_stamp_mode); }

void Tool_Options_Pane::set_selection_mode(int mode) {
    auto& r = static_cast<Option_Pane&>(*rows[tool_pages::row_selection_mode]);
    static_cast<Textlist_Dialog_Item*>(r.container().find(setting_pane_first_id + 1))->choice.value = mode;
}

void Tool_Options_Pane::set_rectangle_type(int type) {
    auto& r = static_cast<Option_Pane&>(*rows[tool_pages::row_rectangle_type]);
    static_cast<Textlist_Dialog_Item*>(r.container().find(setting_pane_first_id + 1))->choice.value = type;
}

void Tool_Options_Pane::set_ellipse_type(int type) {
    auto& r = static_cast<Option_Pane&>(*rows[tool_pages::row_ellipse_type]);
    static_cast<Textlist_Dialog_Item*>(r.container().find(setting_pane_first_id + 1))->choice.value = type;
}

void Tool_Options_Pane::set_location(int x, int y) { location_row->set(x, y); }
void Tool_Options_Pane::set_size(int w, int h) { size_row->set(w, h); }
void Tool_Options_Pane::set_radius(int rx, int ry) { radius_row->set(rx, ry); }
void Tool_Options_Pane::set_length(int n) { length_row->set(n); }
void Tool_Options_Pane::set_degrees(int n) { degrees_row->set(n); }
void Tool_Options_Pane::set_offset(int x, int y) { offset_row->set(x, y); }
void Tool_Options_Pane::set_color_readout(Color c) { color_row->set(c); }

namespace {
void fill_clipped(const Rectangle& r, const Rectangle& view, Color c) {
    const Rectangle shown = r.intersection(view);
    if (!shown.empty()) g_main_window->fill_rect(shown, c);
}

void outline_clipped(const Rectangle& r, const Rectangle& view, Color c) {
    fill_clipped(Rectangle{r.x, r.y, r.width, 1}, view, c);
    fill_clipped(Rectangle{r.x, r.y + r.height - 1, r.width, 1}, view, c);
    fill_clipped(Rectangle{r.x, r.y + 1, 1, r.height - 2}, view, c);
    fill_clipped(Rectangle{r.x + r.width - 1, r.y + 1, 1, r.height - 2}, view, c);
}
}  // namespace

// The stamp under the pointer, pad brushes included: every cell that one of
// its pixels would paint is outlined, placed by its hotspot as the stroke
// places it, so the user sees what a press will stamp.
void Tool_Options_Pane::draw_stamp_outline(const Canvas_View& canvas, float x, float y) const {
    const Tile& image = stamp_image();
    Brush_Stamp stamp(image, stamp_mode());
    const SDL_Point hot = stamp_hotspot();
    stamp.set_hotspot(hot.x, hot.y);
    const int s = canvas.pixel_size();
    const SDL_Point o = canvas.origin();
    const Cell cell = canvas.cell_at(x, y);
    const int left = o.x + (cell.x - stamp.hot_x()) * s;
    const int top = o.y + (cell.y - stamp.hot_y()) * s;
    // The stamp paints its own colours, so the outline is dark around light:
    // seen over any pixel.
    for (int by = 0; by < image.height(); ++by)
        for (int bx = 0; bx < image.width(); ++bx)
            if (image.alpha(bx, by) > 0) {
                const Rectangle cell_box{left + bx * s, top + by * s, s, s};
                outline_clipped(cell_box, canvas.view_rect(), Color(0, 0, 0, 200));
                if (s > 2)
                    outline_clipped(Rectangle{cell_box.x + 1, cell_box.y + 1, s - 2, s - 2}, canvas.view_rect(),
                                    Color(255, 255, 255, 200));
            }
}

// The brush under the pointer: its pixels outlined on the cells it would
// paint (the precise brush) and a translucent shadow following the pointer.
void Tool_Options_Pane::draw_overlays(const Canvas_View& canvas, float x, float y) {
    if (!canvas.tile() || !canvas.contains(x, y)) return;
    if (current_tool == command_stamp_brush) {
        draw_stamp_outline(canvas, x, y);
        return;
    }
    if (!pages[current_page].brush) return;
    const Brush& b = brush();
    const int mode = commands::brush_mode(current_tool);
    const int precise = g_options ? g_options->get(Options::precise_brush) : 2;
    const bool outline = (precise == 1 || (precise == 2 && b.size() > 1)) && (mode == 0 || mode == 6);
    const bool shadow = g_options ? g_options->is_on(Options::show_shadow_brush) : true;
    const bool snap = g_options && g_options->is_on(Options::blocky_precise_brush);
    const int s = canvas.pixel_size();
    const SDL_Point o = canvas.origin();
    const Cell cell = canvas.cell_at(x, y);
    const int hot = brush_hotspot();
    const Rectangle& view = canvas.view_rect();
    Color c = tool_color(0);
    if (outline) {
        c.alpha = 160;
        for (int by = 0; by < b.size(); ++by)
            for (int bx = 0; bx < b.size(); ++bx)
                if (b.is_set(bx, by))
                    fill_clipped(Rectangle{o.x + (cell.x - hot + bx) * s, o.y + (cell.y - hot + by) * s, s, s}, view, c);
    }
    // The shadow outlines the cells it covers, so the pixels under it stay
    // readable.
    if (shadow) {
        c.alpha = 200;
        const int left = snap ? o.x + (cell.x - hot) * s : int(x) - hot * s - s / 2;
        const int top = snap ? o.y + (cell.y - hot) * s : int(y) - hot * s - s / 2;
        for (int by = 0; by < b.size(); ++by)
            for (int bx = 0; bx < b.size(); ++bx)
                if (b.is_set(bx, by)) outline_clipped(Rectangle{left + bx * s, top + by * s, s, s}, view, c);
    }
}
