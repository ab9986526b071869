#include "ui/text_dialog.h"

#include "platform/text_writer.h"

Text_Dialog::Text_Dialog(const char* text) : Dialog_Item(no_id, no_id), content(text) { update(); }

void Text_Dialog::update() {
    int lines = 1;
    for (const char* c = content; *c; ++c)
        if (*c == '\r') ++lines;
    area.width = writer->measure(content);
    area.height = lines * writer->line_height();
}

void Text_Dialog::draw() { writer->write_at(area.x, area.y, content); }
