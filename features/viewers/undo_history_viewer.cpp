#include "features/viewers/undo_history_viewer.h"

#include <SDL3/SDL.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string>

#include "model/core/commands.h"
#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/ui_colors.h"
#include "model/tileset/undo_history.h"
#include "ui/dialog.h"
#include "ui/dialog_row.h"
#include "platform/text_writer.h"

namespace {
constexpr int row_step = 30;
constexpr int box_height = 28;
constexpr int least_width = 300;
constexpr int text_left = 72;

// What a row says of its record: "3. Rectangle selector, tile 3".
std::string row_text(const Undo_Node& node, int i) {
    char text[96];
    const int undo = node.undo_command();
    std::snprintf(text, sizeof text, "%d. %s, tile %d", i + 1, undo >= 0 ? commands::name(undo) : "Floating area",
                  node.tile_index());
    return text;
}
constexpr Color row_frame = ui_colors[ui_grey_128];
constexpr Color row_fill = ui_colors[ui_grey_169];

// The rows of the history, drawn as one dialog item of the client's size.
class History_Rows : public Dialog_Item {
public:
    // As wide as the longest row's text needs, so no row runs past the dialog.
    explicit History_Rows(const Undo_History& history) : Dialog_Item(no_id, no_id), history(history) {
        area.width = least_width;
        for (int i = 0; i < history.count(); ++i)
            area.width = std::max(area.width, text_left + g_main_window->writer().measure(row_text(history.at(i), i).c_str()) + 8);
        area.height = history.capacity() * row_step - 2;
    }

    void draw() override {
        Main_Window& w = *g_main_window;
        for (int i = 0; i < history.count(); ++i) {
            const Rectangle box{area.x, area.y + area.height - Dialog_Row::bar_height + 2 - row_step * i, area.width,
                                box_height};
            const bool current = i == history.position();
            w.bevel(box, row_frame, !current);
            const Rectangle inner{box.x + 1, box.y + 1, box.width - 2, box.height - 2};
            w.fill_rect(inner, current ? ui_colors[ui_white] : row_fill);
            draw_record(history.at(i), i, inner);
        }
    }

private:
    // The picture at the box's corner, kept inside the box however big the
    // tile is, then what the record is.
    void draw_record(const Undo_Node& node, int i, const Rectangle& inner) const {
        g_main_window->clip(inner);
        node.draw(inner.x - 1, inner.y - 1);
        g_main_window->end_clip();
        g_main_window->writer().write_at(inner.x + text_left, inner.y + 6, row_text(node, i).c_str());
    }

    const Undo_History& history;
};
}  // namespace

void show_undo_history(const Undo_History& history) {
    Dialog dialog("Undo history");
    auto row = std::make_unique<Dialog_Row>();
    row->add(std::make_unique<History_Rows>(history));
    dialog.add_row(std::move(row));
    dialog.finish(false);
    dialog.run();
}
