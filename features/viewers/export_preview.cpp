#include "features/viewers/export_preview.h"

#include <SDL3/SDL.h>

#include <memory>

#include "platform/globals.h"
#include "platform/image.h"
#include "platform/main_window.h"
#include "platform/texture.h"
#include "ui/backdrop.h"
#include "ui/pane.h"
#include "platform/text_writer.h"
#include "ui/ui_style.h"
#include "platform/wait_for_key.h"

namespace {
constexpr int area_size = 512;
constexpr int frame_width = 522;
constexpr int frame_height = 583;
constexpr SDL_Keycode key_escape = 27;
constexpr SDL_Keycode key_return = 13;
constexpr SDL_Keycode key_yes = 121;

struct Preview {
    Pane frame;
    std::unique_ptr<Texture> image;
    Rectangle picture;
    bool cut_x;
    bool cut_y;
    Rectangle export_button;
    Rectangle cancel_button;

    void draw() {
        Main_Window& w = *g_main_window;
        frame.draw();
        const Rectangle client = frame.client_area();
        w.fill_rect(Rectangle{client.x, client.y, area_size, area_size}, ui_colors[ui_grey_101]);
        image->source = {0, 0, float(picture.width), float(picture.height)};
        image->draw_in(picture);
        if (cut_x) w.fill_rect(Rectangle{client.x + area_size - 3, client.y, 3, area_size}, ui_colors[ui_red]);
        if (cut_y) w.fill_rect(Rectangle{client.x, client.y + area_size - 3, area_size, 3}, ui_colors[ui_red]);
        button(export_button, "Export as .bmp");
        button(cancel_button, "Cancel");
    }

    static void button(const Rectangle& r, const char* label) {
        Main_Window& w = *g_main_window;
        Text_Writer& t = w.writer(font_regular);
        w.bevel_fill(r, button_face_color);
        t.write_at(r.x + (r.width - t.measure(label)) / 2, r.y + (r.height - t.line_height()) / 2, label);
    }
};

void paint_preview(void* preview) { static_cast<Preview*>(preview)->draw(); }
Backdrop::Area preview_area(const void* preview) { return static_cast<const Preview*>(preview)->frame.modal_area(); }
}  // namespace

bool show_export_preview(const Image& sheet) {
    Main_Window& w = *g_main_window;
    const int x = (int(w.width()) - frame_width) / 2;
    const int y = (int(w.height()) - frame_height) / 2;
    Preview p{Pane(Rectangle{x, y, frame_width, frame_height - Pane::header_height}, "Export"), nullptr, {}, false,
              false, {}, {}};
    p.image.reset(Texture::from_surface(w.renderer(), sheet.surface()));
    const Rectangle client = p.frame.client_area();
    const int sw = int(sheet.width());
    const int sh = int(sheet.height());
    p.cut_x = sw > area_size;
    p.cut_y = sh > area_size;
    p.picture = Rectangle{client.x + (p.cut_x ? 0 : (area_size - sw) / 2), client.y + (p.cut_y ? 0 : (area_size - sh) / 2),
                          p.cut_x ? area_size : sw, p.cut_y ? area_size : sh};
    const int button_y = client.y + area_size + 8;
    p.export_button = Rectangle{client.x, button_y, 150, 27};
    p.cancel_button = Rectangle{client.x + client.width - 100, button_y, 100, 27};

    Backdrop_Layer layer(paint_preview, &p, preview_area);
    bool accepted = false;
    SDL_Event event;
    for (bool open = true; open;) {
        Backdrop::paint();
        w.present();
        if (!wait_event(event)) break;
        switch (event.type) {
            case SDL_EVENT_QUIT:
            case SDL_EVENT_WINDOW_CLOSE_REQUESTED:
                open = false;
                break;
            case SDL_EVENT_KEY_DOWN:
                if (event.key.key == key_return || event.key.key == key_yes) accepted = true;
                if (accepted || event.key.key == key_escape) open = false;
                break;
            case SDL_EVENT_MOUSE_BUTTON_DOWN:
                if (p.export_button.contains(event.button.x, event.button.y)) {
                    accepted = true;
                    open = false;
                } else if (p.cancel_button.contains(event.button.x, event.button.y)) {
                    open = false;
                }
                break;
            default:
                break;
        }
    }
    flush_events();
    return accepted;
}
