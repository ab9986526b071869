#pragma once

#include <memory>
#include <string>

#include "ui/dialog_pane.h"

class Texture;

// A modal dialog: rows of items in a framed pane, run in its own event loop
// until an Accept or Cancel item is pressed or a key ends it. A dialog with a
// data file reads its items' state from it when it opens and writes it there
// on every Accept, both in the "data" directory.
class Dialog {
public:
    static constexpr int frame_margin = 14;

    explicit Dialog(const char* title);
    Dialog(const char* title, std::string data_file);
    virtual ~Dialog() = default;
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;

    // Rows are appended in display order.
    Dialog_Row& add_text(const char* text);
    Dialog_Row& add_image(int sprite);
    Dialog_Row& add_image(Texture& texture);
    Dialog_Row& add_tick_row(uint32_t id, bool checked, const char* label);
    Dialog_Row& add_number_row(uint32_t id, int32_t value, int32_t min, int32_t max,
                               const char* label);
    Dialog_Row& add_list_row(uint32_t id, int32_t value, const char* list_text);
    Dialog_Row& add_row(std::unique_ptr<Dialog_Row> row);
    // Appends the button bar, opens the dialog (reading its data file) and
    // places the bar at the bottom of the frame.
    void finish(bool with_cancel);

    // Reads the data file if there is one, sizes the frame to the rows plus
    // 14 pixels each way (the header on top of that) and centres it.
    void open();
    // The modal loop. True when accepted (and, with a data file, when the
    // data directory could be entered to save it).
    bool run();
    // Lays out the rows below the first again and replaces the button bar.
    void update_all();
    void draw();

    int32_t value_of(uint32_t id) const { return frame.container().value_of(id); }
    Dialog_Item* find(uint32_t id) const { return frame.container().find(id); }
    Dialog_Container& container() { return frame.container(); }
    Dialog_Pane& pane() { return frame; }
    const Dialog_Pane& pane() const { return frame; }
    const std::string& data_file() const { return file_name; }
    // The last press's result, kept after run returns.
    const Dialog_Event& result() const { return outcome; }

private:
    void load_data();
    bool save_data();

    Dialog_Pane frame;
    std::string file_name;
    Dialog_Row* bar = nullptr;
    Dialog_Event outcome;
};
