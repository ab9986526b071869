#include "ui/info_panes.h"

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/text_writer.h"

namespace {
Text_Writer& writer_at_client(const Rectangle& client) {
    Text_Writer& writer = g_main_window->writer(font_pane);
    writer.set_cursor(client.x, client.y - 1);
    return writer;
}
}  // namespace

void Location_Info::draw() {
    Pane::draw();
    writer_at_client(client).printf("%d, %d", a, b);
}

void Number_Info::draw() {
    Pane::draw();
    writer_at_client(client).printf("%d", number);
}
