#include "support/headless.h"

#include "app/application.h"
#include "platform/data_directory.h"
#include "platform/globals.h"
#include "platform/main_window.h"

namespace fs = std::filesystem;

fs::path source_path(const std::string& relative) { return fs::path(MOSSWICK_SOURCE_DIR) / relative; }

void Headless::SetUp() {
    previous_dir = fs::current_path();
    scratch = std::make_unique<Scratch_Dir>();
    work_dir = scratch->path();
    fs::create_directory(work_dir / "data");
    fs::copy_file(source_path("data/pool.bmp"), work_dir / "data" / "pool.bmp");
    fs::current_path(work_dir);
    SDL_SetHint(SDL_HINT_VIDEO_DRIVER, "dummy");
    ASSERT_TRUE(SDL_InitSubSystem(SDL_INIT_VIDEO)) << SDL_GetError();
    Application::start_up();
    drop_pending_events();
}

void Headless::TearDown() {
    Application::shut_down();
    SDL_QuitSubSystem(SDL_INIT_VIDEO);
    SDL_Quit();
    fs::current_path(previous_dir);
    scratch.reset();
}

void Headless::drop_pending_events() {
    SDL_PumpEvents();
    SDL_FlushEvents(SDL_EVENT_FIRST, SDL_EVENT_LAST);
}

namespace {
SDL_WindowID window_id() { return SDL_GetWindowID(g_main_window->window()); }
}  // namespace

namespace {
void push_key_event(SDL_Keycode key, SDL_Keymod mod, bool down) {
    SDL_Event e{};
    e.type = down ? SDL_EVENT_KEY_DOWN : SDL_EVENT_KEY_UP;
    e.key.windowID = window_id();
    e.key.key = key;
    e.key.scancode = SDL_GetScancodeFromKey(key, nullptr);
    e.key.mod = mod;
    e.key.down = down;
    SDL_PushEvent(&e);
}
}  // namespace

void Headless::push_key(SDL_Keycode key, SDL_Keymod mod) {
    push_key_event(key, mod, true);
    push_key_event(key, mod, false);
}

void Headless::push_key_down(SDL_Keycode key, SDL_Keymod mod) { push_key_event(key, mod, true); }

void Headless::push_text_key(char c) { push_key(SDL_Keycode(static_cast<unsigned char>(c))); }

void Headless::push_button(int x, int y, bool down, Uint8 button) {
    SDL_Event e{};
    e.type = down ? SDL_EVENT_MOUSE_BUTTON_DOWN : SDL_EVENT_MOUSE_BUTTON_UP;
    e.button.windowID = window_id();
    e.button.button = button;
    e.button.down = down;
    e.button.clicks = 1;
    e.button.x = float(x);
    e.button.y = float(y);
    SDL_PushEvent(&e);
}

void Headless::push_click(int x, int y, Uint8 button) {
    push_button(x, y, true, button);
    push_button(x, y, false, button);
}

void Headless::push_motion(int x, int y, Uint32 buttons, float xrel, float yrel) {
    SDL_Event e{};
    e.type = SDL_EVENT_MOUSE_MOTION;
    e.motion.windowID = window_id();
    e.motion.state = buttons;
    e.motion.x = float(x);
    e.motion.y = float(y);
    e.motion.xrel = xrel;
    e.motion.yrel = yrel;
    SDL_PushEvent(&e);
}

void Headless::push_quit() {
    SDL_Event e{SDL_EVENT_QUIT};
    SDL_PushEvent(&e);
}

void Headless::push_close_request() {
    SDL_Event e{SDL_EVENT_WINDOW_CLOSE_REQUESTED};
    e.window.windowID = window_id();
    SDL_PushEvent(&e);
}

Color Headless::read_pixel(int x, int y) {
    const SDL_Rect r{x, y, 1, 1};
    SDL_Surface* s = SDL_RenderReadPixels(g_main_window->renderer(), &r);
    Color c(0, 0, 0, 0);
    if (s) {
        SDL_ReadSurfacePixel(s, 0, 0, &c.red, &c.green, &c.blue, &c.alpha);
        SDL_DestroySurface(s);
    }
    return c;
}

SDL_Surface* Headless::read_frame() { return SDL_RenderReadPixels(g_main_window->renderer(), nullptr); }

int differing_pixels(const SDL_Surface* a, const SDL_Surface* b) {
    int count = 0;
    for (int y = 0; y < a->h; ++y) {
        const Uint32* p = reinterpret_cast<const Uint32*>(static_cast<const Uint8*>(a->pixels) + y * a->pitch);
        const Uint32* q = reinterpret_cast<const Uint32*>(static_cast<const Uint8*>(b->pixels) + y * b->pitch);
        for (int x = 0; x < a->w; ++x) count += (p[x] ^ q[x]) & 0x00FFFFFF ? 1 : 0;
    }
    return count;
}
