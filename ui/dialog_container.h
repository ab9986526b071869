#pragma once

#include <memory>
#include <vector>

#include "ui/dialog_row.h"

// The rows of a dialog, top to bottom, which it owns.
class Dialog_Container {
public:
    Dialog_Row& add(std::unique_ptr<Dialog_Row> row);

    // The first row containing the point decides; outside every row nothing happens.
    Dialog_Event hit(int x, int y);
    // The first item with that id in any row.
    Dialog_Item* find(uint32_t id) const;
    int32_t value_of(uint32_t id) const;
    void draw_all();
    void begin_all();
    void cancel_all();
    // Rows stacked down from (x, y) without gaps. Without all_rows the first
    // row is laid out again where it already stands: it keeps its place.
    void layout(int x, int y, bool all_rows);
    // The row count, then every item's saved values in row order.
    void save(Token_Stream& stream) const;
    // Reads back integer by integer in order; the row count read is not used.
    void load(Token_Stream& stream);

    // The widest row and the rows' heights added up.
    int width() const;
    int height() const;
    const std::vector<std::unique_ptr<Dialog_Row>>& rows() const { return list; }

private:
    std::vector<std::unique_ptr<Dialog_Row>> list;
};
