#include "ui/dialog.h"

#include <SDL3/SDL.h>

#include "platform/data_directory.h"
#include "model/core/data_file.h"
#include "platform/debug_log.h"
#include "platform/globals.h"
#include "platform/main_window.h"
#include "model/core/safe_file.h"
#include "ui/backdrop.h"
#include "ui/dialog_rows.h"
#include "ui/message_box.h"
#include "ui/ui_globals.h"
#include "platform/wait_for_key.h"

namespace {
constexpr SDL_Keycode key_escape = 27;
constexpr SDL_Keycode key_return = 13;
constexpr SDL_Keycode key_yes = 121;

// The frame starts here and is placed properly when the dialog opens.
constexpr Rectangle first_frame{100, 100, 100, 100};

void warn_user(const char* text) {
    if (g_message_box)
        g_message_box->warning(text);
    else if (g_debug_log)
        g_debug_log->warn("%s", text);
}

void paint_dialog(void* dialog) { static_cast<Dialog*>(dialog)->draw(); }
Backdrop::Area dialog_area(const void* dialog) { return static_cast<const Dialog*>(dialog)->pane().modal_area(); }
}  // namespace

Dialog::Dialog(const char* title) : frame(first_frame, title) {}

Dialog::Dialog(const char* title, std::string data_file)
    : frame(first_frame, title), file_name(std::move(data_file)) {}

Dialog_Row& Dialog::add_row(std::unique_ptr<Dialog_Row> row) { return container().add(std::move(row)); }

Dialog_Row& Dialog::add_text(const char* text) { return add_row(make_text_row(text)); }

Dialog_Row& Dialog::add_image(int sprite) { return add_row(make_image_row(sprite)); }

Dialog_Row& Dialog::add_image(Texture& texture) { return add_row(make_image_row(texture)); }

Dialog_Row& Dialog::add_tick_row(uint32_t id, bool checked, const char* label) {
    return add_row(make_tick_row(id, checked, label));
}

Dialog_Row& Dialog::add_number_row(uint32_t id, int32_t value, int32_t min, int32_t max,
                                   const char* label) {
    return add_row(make_number_row(id, value, min, max, label));
}

Dialog_Row& Dialog::add_list_row(uint32_t id, int32_t value, const char* list_text) {
    return add_row(make_list_row(id, value, list_text));
}

void Dialog::finish(bool with_cancel) {
    bar = &add_row(make_button_bar(with_cancel));
    open();
    bar->layout_as_button_bar(frame.outer_area());
}

void Dialog::open() {
    load_data();
    // The rows are measured where they stand, then placed in the sized frame.
    frame.layout_rows();
    frame.set_size(container().width() + frame_margin,
                   container().height() + frame_margin + Pane::header_height);
    const Rectangle& outer = frame.outer_area();
    frame.set_position((int(g_main_window->width()) - outer.width) / 2,
                       (int(g_main_window->height()) - outer.height) / 2);
    frame.layout_rows();
    if (bar) bar->layout_as_button_bar(frame.outer_area());
}

void Dialog::update_all() {
    const Rectangle client = frame.client_area();
    container().layout(client.x, client.y - 2, false);
    if (bar) bar->layout_as_button_bar(frame.outer_area());
}

void Dialog::draw() { frame.draw(); }

bool Dialog::run() {
    outcome = Dialog_Event{};
    container().begin_all();
    {
        const Backdrop_Layer layer(paint_dialog, this, dialog_area);
        bool running = true;
        SDL_Event event;
        while (running) {
            Backdrop::paint();
            g_main_window->present();
            if (!wait_event(event)) break;
            switch (event.type) {
            case SDL_EVENT_KEY_DOWN:
                if (event.key.key == key_escape) {
                    running = false;
                } else if (event.key.key == key_return || event.key.key == key_yes) {
                    outcome.type = item_accept;
                    running = false;
                }
                break;
            case SDL_EVENT_MOUSE_BUTTON_DOWN: {
                if (!event.button.down) break;
                outcome = container().hit(int(event.button.x), int(event.button.y));
                if (outcome.target != -1)
                    if (Dialog_Item* item = find(uint32_t(outcome.target))) item->receive(outcome.type);
                if (outcome.type == item_accept || outcome.type == item_cancel)
                    running = false;
                else if (item_type_redraws(outcome.type))
                    update_all();
                break;
            }
            // The close button of the window ends the dialog like a quit.
            case SDL_EVENT_QUIT:
            case SDL_EVENT_WINDOW_CLOSE_REQUESTED:
                running = false;
                break;
            default:
                break;
            }
        }
        flush_events();
    }
    if (outcome.type == item_cancel) {
        container().cancel_all();
        return false;
    }
    if (outcome.type != item_accept) return false;
    return file_name.empty() || save_data();
}

void Dialog::load_data() {
    if (file_name.empty()) return;
    const bool was_inside = Data_Directory::current() == Data_Directory::data;
    if (!was_inside && Data_Directory::enter(Data_Directory::data) <= 0) return;
    Data_File file(file_name);
    file.set_settings_file(true);
    if (file.open_read()) {
        Token_Stream stream;
        stream.read_from(file);
        // A file of length 0 loads nothing: the items keep their values.
        if (!stream.text().empty()) container().load(stream);
    }
    file.close();
    if (!was_inside) Data_Directory::leave();
}

bool Dialog::save_data() {
    Token_Stream stream;
    container().save(stream);
    const bool was_inside = Data_Directory::current() == Data_Directory::data;
    if (!was_inside && Data_Directory::enter(Data_Directory::data) <= 0) {
        warn_user("Can't switch to 'data' directory.");
        return false;
    }
    // Written aside and moved into place: a full disk keeps the old file.
    const bool written =
        safe_file::written(file_name, [&](std::FILE* file) { return stream.write_to(file); }, safe_file::Links::follow);
    // The dialog's values stand; only keeping them failed, and the user was told.
    if (!written) warn_user("Can't save dialog data.");
    if (!was_inside) Data_Directory::leave();
    return true;
}
