#pragma once

#include <functional>

#include "ui/dialog.h"
#include "model/core/rectangle.h"

// The box the reference viewers share: a title, a client area of the size
// asked for, painted by the viewer, and one "Ok" button. It runs the dialogs'
// modal loop, so "Ok", Return, Escape, a quit or closing the window end it.
class Text_Viewer {
public:
    using Painter = std::function<void(const Rectangle& client)>;

    Text_Viewer(const char* title, int client_width, int client_height, Painter paint);
    void run();
    // Where the client area stands once the box is laid out.
    Rectangle client() const;
    Dialog& dialog() { return box; }

private:
    Dialog box;
    Dialog_Item* area = nullptr;
};
