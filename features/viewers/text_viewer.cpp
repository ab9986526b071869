#include "features/viewers/text_viewer.h"

#include <memory>

#include "ui/dialog_row.h"

namespace {
// The client area as one dialog item, so the dialog lays it out like any row.
class Painted_Area : public Dialog_Item {
public:
    Painted_Area(int width, int height, Text_Viewer::Painter paint)
        : Dialog_Item(no_id, no_id), paint(std::move(paint)) {
        area.width = width;
        area.height = height;
    }
    void draw() override { paint(area); }

private:
    Text_Viewer::Painter paint;
};
}  // namespace

Text_Viewer::Text_Viewer(const char* title, int client_width, int client_height, Painter paint) : box(title) {
    auto item = std::make_unique<Painted_Area>(client_width, client_height, std::move(paint));
    area = item.get();
    auto row = std::make_unique<Dialog_Row>();
    row->add(std::move(item));
    box.add_row(std::move(row));
    box.finish(false);
}

void Text_Viewer::run() { box.run(); }

Rectangle Text_Viewer::client() const { return area->area; }
