#include "features/color/selected_color_area.h"

#include "platform/globals.h"
#include "platform/main_window.h"
#include "ui/number_prompt.h"
#include "platform/text_writer.h"
#include "ui/ui_style.h"

namespace {
constexpr const char* channel_labels[4] = {"R", "G", "B", "A"};
constexpr int more_offset = 55;
}  // namespace

Selected_Color_Area::Selected_Color_Area(int x, int y, int width, int body_height)
    : Pane(Rectangle{x, y, width, body_height}, "Selected"), swatch(field_width, 64) {
    for (int i = 0; i < 8; ++i)
        buttons[i] = std::make_unique<Button_Dialog_Item>(Dialog_Item::no_id, Dialog_Item::no_id,
                                                          i < 4 ? button_less : button_more);
}

Selected_Color_Area::~Selected_Color_Area() = default;

Rectangle Selected_Color_Area::button_area(int index) const {
    const int row = index % 4;
    const int x = client.x + field_width + 28 + (index < 4 ? 0 : more_offset);
    return Rectangle{x, client.y + row * row_height + 2, buttons[index]->area.width, buttons[index]->area.height};
}

Rectangle Selected_Color_Area::value_area(int row) const {
    const Rectangle less = button_area(row);
    return Rectangle{less.x + less.width + 2, client.y + row * row_height, more_offset - less.width - 4, row_height};
}

uint8_t& Selected_Color_Area::channel(int row) {
    switch (row) {
        case 0: return edited.red;
        case 1: return edited.green;
        case 2: return edited.blue;
        default: return edited.alpha;
    }
}

void Selected_Color_Area::draw() {
    Pane::draw();
    Main_Window& w = *g_main_window;
    const int half = client.height / 2;
    const Rectangle top{client.x, client.y, field_width, half};
    const Rectangle bottom{client.x, client.y + half, field_width, client.height - half};
    swatch.draw(top, edited);
    swatch.draw(bottom, compared);
    w.frame(Rectangle{client.x, client.y, field_width, client.height}, pane_frame_color);
    Text_Writer& writer = w.writer(font_pane);
    for (int row = 0; row < 4; ++row) {
        const int y = client.y + row * row_height;
        writer.write_at(client.x + field_width + 8, y, channel_labels[row]);
        for (int index : {row, row + 4}) {
            buttons[index]->area = button_area(index);
            buttons[index]->draw();
        }
        const Rectangle v = value_area(row);
        writer.set_cursor(v.x + 2, y);
        writer.printf("%d", int(channel(row)));
    }
}

bool Selected_Color_Area::press(int x, int y) {
    for (int index = 0; index < 8; ++index) {
        if (!button_area(index).contains(x, y)) continue;
        uint8_t& c = channel(index % 4);
        const int v = c + (index < 4 ? -step : step);
        c = uint8_t(v < 0 ? 0 : (v > 255 ? 255 : v));
        return true;
    }
    for (int row = 0; row < 4; ++row) {
        const Rectangle v = value_area(row);
        if (!v.contains(x, y)) continue;
        const auto entered = Number_Prompt::ask(v.x, v.y, channel(row), 0, 255);
        if (!entered) return false;
        channel(row) = uint8_t(*entered);
        return true;
    }
    return false;
}
