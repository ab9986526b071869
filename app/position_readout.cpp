#include "app/position_readout.h"

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/text_writer.h"

// The blanks overwrite what a longer earlier readout left behind.
void Position_Readout::draw() const {
    if (!shown) return;
    Text_Writer& t = g_main_window->writer(font_regular);
    t.set_cursor(x, y);
    t.printf("Pos: %d,%d  \rTile: %d  ", px, py, index);
}
