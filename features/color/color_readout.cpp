#include "features/color/color_readout.h"

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/text_writer.h"
#include "ui/ui_style.h"

Color_Readout::Color_Readout(const Rectangle& area, const char* title) : Pane(area, title), swatch(40, 20) {}

void Color_Readout::draw() {
    Pane::draw();
    const Rectangle field{client.x, client.y, 40, client.height};
    swatch.draw(field, shown);
    g_main_window->frame(field, pane_frame_color);
    Text_Writer& writer = g_main_window->writer(font_pane);
    writer.set_cursor(client.x + 48, client.y - 1);
    writer.printf("%u, %u, %u, %u", unsigned(shown.red), unsigned(shown.green), unsigned(shown.blue),
                  unsigned(shown.alpha));
}
