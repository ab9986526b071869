#pragma once

#include <SDL3/SDL.h>

#include <vector>

#include "app/canvas_view.h"
#include "app/editor.h"
#include "platform/globals.h"
#include "ui/backdrop.h"

// The stroke loop's repaint hook: stamps each event and pushes the next one.
struct Drag {
    static constexpr int events = 2000;
    std::vector<uint64_t> stamps;
    int sent = 0;

    static void paint(void* self) {
        auto* d = static_cast<Drag*>(self);
        g_editor->repaint(false);
        d->stamps.push_back(SDL_GetTicksNS());
        SDL_Event e{};
        const Canvas_View& view = g_editor->canvas();
        if (d->sent < events) {
            // A zigzag that runs back and forth across the tile.
            const int i = d->sent++;
            const int cx = (i * 3) % 128 < 64 ? (i * 3) % 64 : 63 - (i * 3) % 64;
            const int cy = (i / 7) % 64;
            e.type = SDL_EVENT_MOUSE_MOTION;
            e.motion.x = float(view.origin().x + cx * 8 + 4);
            e.motion.y = float(view.origin().y + cy * 8 + 4);
            e.motion.state = SDL_BUTTON_LMASK;
        } else {
            e.type = SDL_EVENT_MOUSE_BUTTON_UP;
            e.button.button = SDL_BUTTON_LEFT;
        }
        SDL_PushEvent(&e);
    }
};

// One left-button drag through the real stroke loop on a 64 x 64 tile at
// pixel size 8: a press at the tile's corner, then 2,000 motions back and
// forth across the tile (one per repaint), then the release. Returns the
// time of each event with its repaint, in milliseconds.
inline std::vector<double> drag_per_event_ms() {
    Drag drag;
    drag.stamps.reserve(Drag::events + 2);
    Backdrop::set_base(&Drag::paint, &drag);
    const SDL_Point p = g_editor->canvas().origin();
    SDL_Event down{};
    down.type = SDL_EVENT_MOUSE_BUTTON_DOWN;
    down.button.button = SDL_BUTTON_LEFT;
    down.button.x = float(p.x + 4);
    down.button.y = float(p.y + 4);
    g_editor->handle(down);
    Backdrop::set_base(nullptr, nullptr);
    std::vector<double> per_event;
    for (size_t i = 1; i < drag.stamps.size(); ++i) per_event.push_back(double(drag.stamps[i] - drag.stamps[i - 1]) / 1e6);
    return per_event;
}
