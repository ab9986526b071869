#include "ui/dialog_item.h"

#include "platform/debug_log.h"
#include "platform/globals.h"
#include "platform/main_window.h"

Dialog_Item::Dialog_Item(uint32_t id, uint32_t host)
    : id(id), host(host), writer(&g_main_window->writer(font_regular)) {}

Dialog_Event Dialog_Item::hit(int x, int y) {
    if (g_debug_log)
        g_debug_log->log("Base class event processed at %d, %d (id/host: %d/%d.)", x, y, int(id),
                         int(host));
    return Dialog_Event{};
}

void Dialog_Item::receive(int32_t type) {
    if (g_debug_log) g_debug_log->log("Base class received %d event.", type);
}

void Dialog_Item::set_position(int x, int y) {
    area.x = x;
    area.y = y;
}

void Dialog_Item::save(Token_Stream& stream) const { stream.write_number(int32_t(id)); }

void Dialog_Item::load(Token_Stream& stream) { stream.read_number(); }

void Dialog_Item::describe() const {
    if (g_debug_log)
        g_debug_log->log("Dialog id %d/%d at %d, %d (size: %d, %d).", int(id), int(host), area.x,
                         area.y, area.width, area.height);
}
