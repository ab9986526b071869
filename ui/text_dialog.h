#pragma once

#include "ui/dialog_item.h"

// Static text; "\r" breaks lines. The text is the caller's and must outlive
// the item.
class Text_Dialog : public Dialog_Item {
public:
    explicit Text_Dialog(const char* text);

    // Measured again so that a writer given per row sizes the text.
    void update() override;
    void draw() override;

    const char* text() const { return content; }

private:
    const char* content;
};
