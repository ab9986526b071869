#include "ui/number_prompt.h"

#include <SDL3/SDL.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "ui/backdrop.h"
#include "platform/text_writer.h"
#include "ui/ui_style.h"
#include "platform/wait_for_key.h"

namespace {
constexpr int padding = 4;
constexpr int field_height = 25;
constexpr int box_width = 150;

// The digit or minus a key types, or 0.
char typed_char(SDL_Keycode key) {
    if (key >= SDLK_0 && key <= SDLK_9) return char('0' + (key - SDLK_0));
    if (key >= SDLK_KP_1 && key <= SDLK_KP_9) return char('1' + (key - SDLK_KP_1));
    if (key == SDLK_KP_0) return '0';
    if (key == SDLK_MINUS || key == SDLK_KP_MINUS) return '-';
    return 0;
}
}  // namespace

Number_Prompt::Number_Prompt(int x, int y, int32_t value, int32_t lo, int32_t hi)
    : min(lo), max(hi) {
    length = std::snprintf(text, sizeof text, "%d", value);
    const int line = g_main_window->writer(font_pane).line_height();
    char hint[64];
    std::snprintf(hint, sizeof hint, "Only %d to %d", min, max);
    const int width = std::max(box_width, g_main_window->writer(font_pane).measure(hint) + 2 * padding);
    box = Rectangle{x - padding, y - padding, width, 3 * padding + field_height + line};
    const int window_w = int(g_main_window->width());
    const int window_h = int(g_main_window->height());
    box.x = std::clamp(box.x, 0, std::max(0, window_w - box.width));
    box.y = std::clamp(box.y, 0, std::max(0, window_h - box.height));
}

std::optional<int32_t> Number_Prompt::ask(int x, int y, int32_t value, int32_t min, int32_t max) {
    Number_Prompt prompt(x, y, value, min, max);
    // A layer like every modal box, so that whatever paints the backdrop
    // while it is open paints the prompt too.
    const Backdrop_Layer layer(paint, &prompt, area);
    std::optional<int32_t> result;
    SDL_Event event;
    bool running = true;
    while (running) {
        Backdrop::paint();
        g_main_window->present();
        if (!wait_event(event)) break;
        switch (event.type) {
        case SDL_EVENT_KEY_DOWN: {
            const SDL_Keycode key = event.key.key;
            if (key == SDLK_ESCAPE) {
                running = false;
            } else if (key == SDLK_RETURN || key == SDLK_KP_ENTER) {
                result = prompt.accept();
                running = !result;
            } else if (key == SDLK_BACKSPACE) {
                prompt.erase();
            } else if (const char c = typed_char(key)) {
                prompt.type(c);
            }
            break;
        }
        case SDL_EVENT_MOUSE_BUTTON_DOWN:
            if (!prompt.box.contains(event.button.x, event.button.y)) running = false;
            break;
        case SDL_EVENT_QUIT:
        case SDL_EVENT_WINDOW_CLOSE_REQUESTED:
            running = false;
            break;
        default:
            break;
        }
    }
    flush_events();
    return result;
}

void Number_Prompt::paint(void* prompt) { static_cast<const Number_Prompt*>(prompt)->draw(); }

Backdrop::Area Number_Prompt::area(const void* prompt) {
    return Backdrop::Area{{static_cast<const Number_Prompt*>(prompt)->box, Rectangle{}}, 0};
}

void Number_Prompt::type(char c) {
    if (fresh) {
        length = 0;
        fresh = false;
    }
    refused = false;
    // A minus only leads; the length keeps any entry inside 32 bits' digits.
    if (c == '-' && length > 0) return;
    if (length >= max_chars) return;
    text[length++] = c;
    text[length] = '\0';
}

void Number_Prompt::erase() {
    fresh = false;
    refused = false;
    if (length > 0) text[--length] = '\0';
}

std::optional<int32_t> Number_Prompt::accept() {
    fresh = false;
    const bool has_digit = length > 0 && !(length == 1 && text[0] == '-');
    if (has_digit) {
        const long long value = std::strtoll(text, nullptr, 10);
        if (value >= min && value <= max) return int32_t(value);
    }
    refused = true;
    return std::nullopt;
}

void Number_Prompt::draw() const {
    Main_Window& w = *g_main_window;
    w.bevel_fill(box, refused ? prompt_refused_color : pane_body_color);
    const Rectangle field{box.x + padding, box.y + padding, box.width - 2 * padding, field_height};
    w.fill_rect(field, ui_colors[ui_white]);
    w.bevel(field, ui_colors[ui_white], true);
    Text_Writer& writer = w.writer(font_regular);
    const int text_x = field.x + 3;
    const int text_y = field.y + (field_height - writer.line_height()) / 2;
    const int text_w = writer.measure(text);
    // The value offered at first is marked: the first key replaces it.
    if (fresh && length > 0)
        w.fill_rect(Rectangle{text_x - 1, field.y + 2, text_w + 2, field_height - 4}, ui_colors[ui_cyan]);
    writer.write_at(text_x, text_y, text);
    if (!fresh) {
        const int caret_x = text_x + text_w + 1;
        w.line(caret_x, field.y + 3, caret_x, field.y + field_height - 4, ui_colors[ui_black]);
    }
    Text_Writer& hint = w.writer(font_pane);
    hint.set_cursor(field.x, field.y + field_height + padding);
    if (refused)
        hint.printf("Only %d to %d", min, max);
    else
        hint.printf("%d to %d", min, max);
}
