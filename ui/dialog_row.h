#pragma once

#include <memory>
#include <vector>

#include "ui/dialog_item.h"

// A horizontal row of dialog items, which it owns.
class Dialog_Row {
public:
    static constexpr int gap = 7;
    static constexpr int bar_height = 27;
    static constexpr int bar_offset = 34;

    Dialog_Item& add(std::unique_ptr<Dialog_Item> item);

    // Items left to right from (x, y), 7 pixels apart; the row becomes as wide
    // as they are and as tall as the tallest.
    void layout(int x, int y);
    // The row as the bottom bar of rect: one item centred, or the first at the
    // left and the second at the right, 7 pixels in from the edges.
    void layout_as_button_bar(const Rectangle& rect);
    void draw_all();
    void begin_all();
    void cancel_all();
    void set_writer(Text_Writer* writer);
    // The value of the item with that id, or -1.
    int32_t value_of(uint32_t id) const;
    Dialog_Item* item_with(uint32_t id) const;
    // The first result of its items that is not Unknown.
    Dialog_Event hit(int x, int y);
    void save_all(Token_Stream& stream) const;
    void load_all(Token_Stream& stream);

    Rectangle area;
    const std::vector<std::unique_ptr<Dialog_Item>>& items() const { return list; }

private:
    std::vector<std::unique_ptr<Dialog_Item>> list;
};
