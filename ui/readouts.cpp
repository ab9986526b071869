#include "ui/readouts.h"

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/text_writer.h"

namespace {
Text_Writer& regular() { return g_main_window->writer(font_regular); }
}  // namespace

void write_pair_readout(int32_t x, int32_t y) {
    regular().set_cursor(0, 20);
    regular().printf("%d, %d  ", x, y);
}

void write_value_readout(const char* name, int32_t value) {
    regular().set_cursor(0, 550);
    regular().printf("%s=%d", name, value);
}

void write_flag_readout(const char* name, bool flag) {
    regular().set_cursor(0, 550);
    regular().printf("%s=%s", name, flag ? "true" : "false");
}

void write_position_readout(int x, int y, int32_t pixel_x, int32_t pixel_y, int32_t tile) {
    regular().set_cursor(x, y);
    regular().printf("Pos: %d,%d  \rTile: %d  ", pixel_x, pixel_y, tile);
}

void write_location_readout(int32_t x, int32_t y) { regular().printf("Location %d, %d. ", x, y); }
