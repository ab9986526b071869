#include "app/tool_options_link.h"

#include "app/editor.h"
#include "app/strokes/stroke_context.h"
#include "app/tool_options.h"

void link_tool_options(Stroke_Context& context) {
    context.gather = [] {
        Tool_Settings s;
        const Tool_Options_Pane& t = *g_tool_options;
        s.left_color = t.tool_color(0);
        s.right_color = t.tool_color(1);
        s.brush = &t.brush();
        s.brush_width = t.brush_size();
        s.stamp = &t.stamp_image();
        s.stamp_hot_x = t.stamp_hotspot().x;
        s.stamp_hot_y = t.stamp_hotspot().y;
        s.stamp_mode = t.stamp_mode();
        s.rectangle_type = t.rectangle_type();
        s.ellipse_type = t.ellipse_type();
        s.right_button_mode = t.right_button_mode();
        s.colorize_type = t.colorize_type();
        s.lightness_mode = t.lightness_mode();
        s.button_order = t.button_order();
        s.speed = t.speed();
        s.size_compensation = t.size_compensation();
        s.select_previous_tool = t.select_previous_tool();
        return s;
    };
    context.set_tool_color = [](int index, Color c) { g_tool_options->color_tools().set_tool_color(index, c); };
    context.select_previous_tool = [] {
        if (g_editor) g_editor->select_tool(g_tool_options->previous_tool());
    };
    context.show_readout = [](Readout kind, int a, int b) {
        Tool_Options_Pane& t = *g_tool_options;
        switch (kind) {
            case Readout::length: t.set_length(a); break;
            case Readout::size: t.set_size(a, b); break;
            case Readout::radius: t.set_radius(a, b); break;
            case Readout::location: t.set_location(a, b); break;
            case Readout::color: t.set_color_readout(Color::from_word(uint32_t(a) | uint32_t(b) << 24)); break;
            case Readout::degrees: t.set_degrees(a); break;
            case Readout::offset: t.set_offset(a, b); break;
        }
    };
}
