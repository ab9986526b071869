#include "features/viewers/command_lists.h"

#include <algorithm>

#include "model/core/commands.h"
#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/text_writer.h"
#include "features/viewers/text_viewer.h"

namespace {
constexpr int name_offset = 70;
const char* const mouse_text =
    "Editor view:\rCtrl+Right button - Pan view\rMouse wheel - Zoom view\r\rColor editor:\rCtrl+Left button - Set "
    "palette color";
}  // namespace

bool keyboard_row(int command, int x, int y) {
    if (!commands::has_key(command)) return false;
    Text_Writer& writer = g_main_window->writer();
    writer.write_at(x, y, commands::key_label(command));
    writer.write_at(x + name_offset, y, commands::name(command));
    return true;
}

std::vector<Keyboard_Line> keyboard_lines(int lines_per_column) {
    std::vector<Keyboard_Line> lines;
    int column = 0;
    int line = 0;
    for (int command = 0; command < command_count; ++command) {
        if (!commands::has_key(command)) continue;
        lines.push_back(Keyboard_Line{command, column, line});
        if (++line == lines_per_column && column == 0) {
            column = 1;
            line = 0;
        }
    }
    return lines;
}

void show_keyboard_commands() {
    Text_Viewer viewer("Keyboard commands", 700, 512, [](const Rectangle& client) {
        const int h = g_main_window->writer().line_height();
        for (const Keyboard_Line& l : keyboard_lines(client.height / h))
            keyboard_row(l.command, client.x + l.column * (client.width / 2), client.y + l.line * h);
    });
    viewer.run();
}

void show_mouse_commands() {
    const Text_Writer& writer = g_main_window->writer();
    int lines = 1;
    for (const char* c = mouse_text; *c; ++c) lines += *c == '\r';
    const int width = std::max(100, writer.measure(mouse_text));
    const int height = std::max(100, lines * writer.line_height());
    Text_Viewer viewer("Mouse commands", width, height, [](const Rectangle& client) {
        g_main_window->writer().write_at(client.x, client.y, mouse_text);
    });
    viewer.run();
}
