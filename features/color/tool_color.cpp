#include "features/color/tool_color.h"

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/ui_colors.h"
#include "ui/ui_style.h"

Tool_Color::Tool_Color(int x, int y, const char* label)
    : Pane(Rectangle{x, y, 202, body_height}, label), swatch(192, 64) {}

void Tool_Color::draw() {
    Pane::draw();
    Main_Window& w = *g_main_window;
    swatch.draw(client, color);
    w.frame(client, pane_frame_color);
    if (selected) {
        // Two pixels of the interface's bright cyan inside the field's edge.
        const Rectangle r = client;
        w.frame(Rectangle{r.x - 2, r.y - 2, r.width + 4, r.height + 4}, ui_colors[ui_blue]);
        w.frame(Rectangle{r.x - 1, r.y - 1, r.width + 2, r.height + 2}, ui_colors[ui_blue]);
    }
}
