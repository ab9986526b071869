#include "app/application.h"

#include <SDL3/SDL.h>

#include <cstdio>

#include "app/data_directory.h"
#include "app/debug_log.h"
#include "app/fatal.h"
#include "app/globals.h"
#include "app/main_window.h"
#include "app/sprites.h"
#include "ui/image_pool.h"
#include "ui/fonts.h"

int Application::main() {
    if (!SDL_InitSubSystem(SDL_INIT_VIDEO)) {
        std::printf("Error: %s.\n", "Unable to initialize SDL video.");
        return 1;
    }
    start_up();
    run();
    shut_down();
    SDL_QuitSubSystem(SDL_INIT_VIDEO);
    SDL_Quit();
    return 0;
}

void Application::start_up() {
    // The log keeps as many lines as the debug monitor can show.
    const int screen_lines = int(Main_Window::default_height) / font_table[font_regular].glyph_height;
    g_debug_log = new Debug_Log(size_t(screen_lines - 1));
    if (Data_Directory::enter(Data_Directory::data) <= 0) fatal_error("Unable to open 'data' directory.");
    g_main_window = new Main_Window(Main_Window::default_width, Main_Window::default_height);
    Data_Directory::leave();
}

// Until the editor arrives: the window with the logo and a line of text,
// repainted per event, until the window is asked to close.
void Application::run() {
    SDL_Event event;
    for (;;) {
        Main_Window& w = *g_main_window;
        w.clear();
        const SDL_FRect& logo = w.pool().sprite_rect(sprite_logo);
        const int logo_x = (int(w.width()) - int(logo.w)) / 2;
        const int logo_y = int(w.height()) / 2 - 60;
        w.sprite(sprite_logo, logo_x, logo_y);
        const char* line = "Mosswick 0.88 - the tileset editor";
        w.text((int(w.width()) - w.text_width(line)) / 2, logo_y + int(logo.h) + 16, line);
        w.present();
        if (!SDL_WaitEvent(&event)) break;
        if (event.type == SDL_EVENT_QUIT || event.type == SDL_EVENT_WINDOW_CLOSE_REQUESTED) break;
    }
}

void Application::shut_down() {
    Data_Directory::enter(Data_Directory::data);
    Data_Directory::leave();
    delete g_main_window;
    g_main_window = nullptr;
    delete g_debug_log;
    g_debug_log = nullptr;
}
