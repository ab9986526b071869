#include "support/soak_events.h"

#include <cstdio>
#include <iterator>
#include <vector>

#include "model/core/commands.h"

namespace {
struct Area {
    int weight;
    int x, y, width, height;
};

// Where presses land, weighted toward the parts that act on them: the
// canvas, the tool bar, the menu titles and where their menus drop, the tool
// options pane, the strip and tile buttons along the bottom, the middle,
// where dialogs open, and anywhere at all.
constexpr Area areas[] = {
    {30, 264, 64, 512, 512}, {10, 0, 32, 24, 512},     {6, 0, 0, 420, 20},  {6, 0, 20, 520, 340},
    {16, 816, 32, 412, 576}, {10, 0, 576, 1232, 88}, {16, 316, 132, 600, 400}, {6, 0, 0, 1232, 664},
};

SDL_Keymod modifier_keys(int32_t modifier_class) {
    switch (modifier_class) {
        case modifier_shift: return SDL_KMOD_LSHIFT;
        case modifier_ctrl: return SDL_KMOD_LCTRL;
        case modifier_alt: return SDL_KMOD_LALT;
        default: return SDL_KMOD_NONE;
    }
}

SDL_Keycode modifier_key(SDL_Keymod mod) {
    if (mod & SDL_KMOD_SHIFT) return SDLK_LSHIFT;
    if (mod & SDL_KMOD_CTRL) return SDLK_LCTRL;
    return SDLK_LALT;
}

// Every command that has a key, as the table binds it.
const std::vector<int>& keyed_commands() {
    static const std::vector<int> keyed = [] {
        std::vector<int> found;
        for (int c = 0; c < command_count; ++c)
            if (commands::has_key(c)) found.push_back(c);
        return found;
    }();
    return keyed;
}

// What dialogs, prompts and number entries answer to.
constexpr SDL_Keycode answer_keys[] = {
    SDLK_ESCAPE, SDLK_RETURN, SDLK_Y, SDLK_KP_ENTER, SDLK_0, SDLK_1, SDLK_2,         SDLK_3, SDLK_4,
    SDLK_5,      SDLK_6,      SDLK_7, SDLK_8,        SDLK_9, SDLK_MINUS, SDLK_BACKSPACE, SDLK_N, SDLK_SPACE};
}  // namespace

Soak_Events::Soak_Events(uint64_t seed) : state(seed) {}

// splitmix64: the same numbers on every platform and library.
uint64_t Soak_Events::random() {
    uint64_t z = (state += 0x9E3779B97F4A7C15ull);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
    return z ^ (z >> 31);
}

uint32_t Soak_Events::below(uint32_t n) { return n ? uint32_t(random() % n) : 0; }

SDL_Event Soak_Events::next(bool dialog_open) {
    while (planned.empty()) plan(dialog_open);
    SDL_Event e = planned.front();
    planned.pop_front();
    clock_ms += below(60);
    e.common.timestamp = clock_ms * 1000000ull;
    return e;
}

void Soak_Events::plan(bool dialog_open) {
    if (dialog_open && below(2) == 0) {
        if (below(5) < 2)
            answer_key(below(3) == 0);
        else
            click(middle());
        return;
    }
    const uint32_t roll = below(1000);
    if (roll < 220)
        command_key();
    else if (roll < 330)
        answer_key(false);
    else if (roll < 520)
        click(somewhere());
    else if (roll < 600)
        menu_pick();
    else if (roll < 760)
        drag(below(4) == 0 ? SDL_BUTTON_RIGHT : SDL_BUTTON_LEFT);
    else if (roll < 880)
        move_to(somewhere(), 1 + int(below(3)));
    else if (roll < 950)
        wheel();
    else if (roll < 980)
        pan();
    else if (roll < 990)
        lone(SDL_EVENT_WINDOW_CLOSE_REQUESTED);
    else
        lone(SDL_EVENT_QUIT);
}

SDL_Point Soak_Events::somewhere() {
    int total = 0;
    for (const Area& a : areas) total += a.weight;
    int pick = int(below(uint32_t(total)));
    for (const Area& a : areas) {
        if (pick < a.weight)
            return SDL_Point{a.x + int(below(uint32_t(a.width))), a.y + int(below(uint32_t(a.height)))};
        pick -= a.weight;
    }
    return SDL_Point{0, 0};
}

SDL_Point Soak_Events::middle() {
    const Area& a = areas[std::size(areas) - 2];
    return SDL_Point{a.x + int(below(uint32_t(a.width))), a.y + int(below(uint32_t(a.height)))};
}

void Soak_Events::key(SDL_Keycode code, SDL_Keymod mod) {
    for (bool down : {true, false}) {
        SDL_Event e{};
        e.type = down ? SDL_EVENT_KEY_DOWN : SDL_EVENT_KEY_UP;
        e.key.key = code;
        e.key.scancode = SDL_GetScancodeFromKey(code, nullptr);
        e.key.mod = mod;
        e.key.down = down;
        planned.push_back(e);
    }
}

// The modifier goes down first and comes up last, as on a keyboard.
void Soak_Events::command_key() {
    const std::vector<int>& keyed = keyed_commands();
    const Command_Record& c = command_table[keyed[below(uint32_t(keyed.size()))]];
    const SDL_Keymod mod = modifier_keys(c.modifier);
    if (mod == SDL_KMOD_NONE) {
        key(SDL_Keycode(c.key), mod);
        return;
    }
    SDL_Event down{};
    down.type = SDL_EVENT_KEY_DOWN;
    down.key.key = modifier_key(mod);
    down.key.scancode = SDL_GetScancodeFromKey(down.key.key, nullptr);
    down.key.mod = mod;
    down.key.down = true;
    planned.push_back(down);
    key(SDL_Keycode(c.key), mod);
    SDL_Event up = down;
    up.type = SDL_EVENT_KEY_UP;
    up.key.mod = SDL_KMOD_NONE;
    up.key.down = false;
    planned.push_back(up);
}

// The first four keys close a dialog; a closing key can be asked for.
void Soak_Events::answer_key(bool closing) {
    key(answer_keys[below(closing ? 4 : uint32_t(std::size(answer_keys)))], SDL_KMOD_NONE);
}

void Soak_Events::button(Uint8 which, bool down) {
    SDL_Event e{};
    e.type = down ? SDL_EVENT_MOUSE_BUTTON_DOWN : SDL_EVENT_MOUSE_BUTTON_UP;
    e.button.button = which;
    e.button.down = down;
    e.button.clicks = 1;
    e.button.x = x;
    e.button.y = y;
    if (down)
        held |= SDL_BUTTON_MASK(which);
    else
        held &= ~SDL_BUTTON_MASK(which);
    planned.push_back(e);
}

// In even steps, each motion carrying its own movement and the buttons held.
void Soak_Events::move_to(SDL_Point to, int steps) {
    const float from_x = x;
    const float from_y = y;
    for (int i = 1; i <= steps; ++i) {
        SDL_Event e{};
        e.type = SDL_EVENT_MOUSE_MOTION;
        e.motion.state = held;
        e.motion.x = float(int(from_x + (float(to.x) - from_x) * float(i) / float(steps)));
        e.motion.y = float(int(from_y + (float(to.y) - from_y) * float(i) / float(steps)));
        e.motion.xrel = e.motion.x - x;
        e.motion.yrel = e.motion.y - y;
        x = e.motion.x;
        y = e.motion.y;
        planned.push_back(e);
    }
}

void Soak_Events::click(SDL_Point at) {
    move_to(at, 1);
    const Uint8 which = below(4) == 0 ? SDL_BUTTON_RIGHT : SDL_BUTTON_LEFT;
    button(which, true);
    button(which, false);
}

// A menu title, then somewhere down the menu that drops below it.
void Soak_Events::menu_pick() {
    const SDL_Point title{int(below(360)), int(below(25))};
    click(title);
    click(SDL_Point{title.x + int(below(160)) - 20, 25 + int(below(340))});
}

// Mostly short strokes that stay near the press, sometimes across the window.
void Soak_Events::drag(Uint8 which) {
    move_to(somewhere(), 1);
    button(which, true);
    const int moves = 1 + int(below(2));
    for (int m = 0; m < moves; ++m) {
        SDL_Point to = somewhere();
        if (below(3) != 0) to = SDL_Point{int(x) + int(below(121)) - 60, int(y) + int(below(121)) - 60};
        move_to(to, 1 + int(below(6)));
    }
    button(which, false);
}

void Soak_Events::wheel() {
    move_to(somewhere(), 1);
    SDL_Event e{};
    e.type = SDL_EVENT_MOUSE_WHEEL;
    e.wheel.y = below(2) ? 1.0f : -1.0f;
    e.wheel.mouse_x = x;
    e.wheel.mouse_y = y;
    planned.push_back(e);
}

// Ctrl with the right button drags the canvas.
void Soak_Events::pan() {
    SDL_Event ctrl{};
    ctrl.type = SDL_EVENT_KEY_DOWN;
    ctrl.key.key = SDLK_LCTRL;
    ctrl.key.scancode = SDL_SCANCODE_LCTRL;
    ctrl.key.mod = SDL_KMOD_LCTRL;
    ctrl.key.down = true;
    planned.push_back(ctrl);
    drag(SDL_BUTTON_RIGHT);
    ctrl.type = SDL_EVENT_KEY_UP;
    ctrl.key.mod = SDL_KMOD_NONE;
    ctrl.key.down = false;
    planned.push_back(ctrl);
}

void Soak_Events::lone(Uint32 type) {
    SDL_Event e{};
    e.type = type;
    planned.push_back(e);
}

std::string Soak_Events::describe(const SDL_Event& e) {
    char text[160];
    switch (e.type) {
        case SDL_EVENT_KEY_DOWN:
        case SDL_EVENT_KEY_UP:
            std::snprintf(text, sizeof text, "key %s \"%s\" (0x%x) mod 0x%x", e.type == SDL_EVENT_KEY_DOWN ? "down" : "up",
                          SDL_GetKeyName(e.key.key), unsigned(e.key.key), unsigned(e.key.mod));
            break;
        case SDL_EVENT_MOUSE_BUTTON_DOWN:
        case SDL_EVENT_MOUSE_BUTTON_UP:
            std::snprintf(text, sizeof text, "button %d %s at (%g, %g)", int(e.button.button),
                          e.type == SDL_EVENT_MOUSE_BUTTON_DOWN ? "down" : "up", double(e.button.x),
                          double(e.button.y));
            break;
        case SDL_EVENT_MOUSE_MOTION:
            std::snprintf(text, sizeof text, "motion to (%g, %g) by (%g, %g) buttons 0x%x", double(e.motion.x),
                          double(e.motion.y), double(e.motion.xrel), double(e.motion.yrel), unsigned(e.motion.state));
            break;
        case SDL_EVENT_MOUSE_WHEEL:
            std::snprintf(text, sizeof text, "wheel %+g at (%g, %g)", double(e.wheel.y), double(e.wheel.mouse_x),
                          double(e.wheel.mouse_y));
            break;
        case SDL_EVENT_WINDOW_CLOSE_REQUESTED:
            std::snprintf(text, sizeof text, "close request");
            break;
        case SDL_EVENT_QUIT:
            std::snprintf(text, sizeof text, "quit");
            break;
        default:
            std::snprintf(text, sizeof text, "event type 0x%x", unsigned(e.type));
            break;
    }
    return text;
}
