// A long seeded stream of random input through the real main loop and every
// modal loop it opens, with the editor's consistency checked before each
// event is handed out. MOSSWICK_SOAK_SEED and MOSSWICK_SOAK_EVENTS replay or
// extend a run; a failure names both. The stream depends on the seed alone, so
// a crash recurs at the same event when the run is repeated.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "app/application.h"
#include "app/canvas_view.h"
#include "app/editor.h"
#include "app/file_dialog.h"
#include "model/core/commands.h"
#include "platform/event_source.h"
#include "platform/globals.h"
#include "platform/main_window.h"
#include "support/headless.h"
#include "ui/backdrop.h"

namespace fs = std::filesystem;

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

// What dialogs, prompts and number entries answer to; the first four close a dialog.
constexpr SDL_Keycode answer_keys[] = {
    SDLK_ESCAPE, SDLK_RETURN, SDLK_Y, SDLK_KP_ENTER, SDLK_0, SDLK_1, SDLK_2,         SDLK_3, SDLK_4,
    SDLK_5,      SDLK_6,      SDLK_7, SDLK_8,        SDLK_9, SDLK_MINUS, SDLK_BACKSPACE, SDLK_N, SDLK_SPACE};

// An endless stream of user input made from a seed alone: keys of the command
// table with their modifiers, the keys dialogs answer to, clicks and drags
// with either button (mostly where the window's parts and its dialogs are),
// pointer moves, wheel turns, a Ctrl drag now and then, and rarely a close
// request or a quit. Each event moves the stream's own clock on, so that paced
// work sees the same time on every run.
class Soak_Events {
public:
    explicit Soak_Events(uint64_t seed) : state(seed) {}

    // While a dialog is open, more of the stream answers it (keys and presses
    // in the middle) so that the run also gets back out.
    SDL_Event next(bool dialog_open) {
        while (planned.empty()) plan(dialog_open);
        SDL_Event e = planned.front();
        planned.pop_front();
        clock_ms += below(60);
        e.common.timestamp = clock_ms * 1000000ull;
        return e;
    }
    // splitmix64: the same numbers on every platform and library.
    uint32_t below(uint32_t n) {
        uint64_t z = (state += 0x9E3779B97F4A7C15ull);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
        return n ? uint32_t((z ^ (z >> 31)) % n) : 0;
    }
    uint64_t now_ms() const { return clock_ms; }

private:
    void plan(bool dialog_open) {
        if (dialog_open && below(2) == 0) {
            if (below(5) < 2)
                answer_key(below(3) == 0);
            else
                click(in(areas[std::size(areas) - 2]));
            return;
        }
        const uint32_t roll = below(1000);
        if (roll < 220) command_key();
        else if (roll < 330) answer_key(false);
        else if (roll < 520) click(somewhere());
        else if (roll < 600) menu_pick();
        else if (roll < 760) drag(below(4) == 0 ? SDL_BUTTON_RIGHT : SDL_BUTTON_LEFT);
        else if (roll < 880) move_to(somewhere(), 1 + int(below(3)));
        else if (roll < 950) wheel();
        else if (roll < 980) pan();
        else push(roll < 990 ? SDL_EVENT_WINDOW_CLOSE_REQUESTED : SDL_EVENT_QUIT);
    }
    SDL_Point in(const Area& a) {
        return SDL_Point{a.x + int(below(uint32_t(a.width))), a.y + int(below(uint32_t(a.height)))};
    }
    SDL_Point somewhere() {
        int total = 0;
        for (const Area& a : areas) total += a.weight;
        int pick = int(below(uint32_t(total)));
        for (const Area& a : areas) {
            if (pick < a.weight) return in(a);
            pick -= a.weight;
        }
        return SDL_Point{0, 0};
    }
    SDL_Event& push(Uint32 type) {
        SDL_Event e{};
        e.type = type;
        planned.push_back(e);
        return planned.back();
    }
    void key_event(SDL_Keycode code, SDL_Keymod mod, bool down) {
        SDL_KeyboardEvent& k = push(down ? SDL_EVENT_KEY_DOWN : SDL_EVENT_KEY_UP).key;
        k.key = code;
        k.scancode = SDL_GetScancodeFromKey(code, nullptr);
        k.mod = mod;
        k.down = down;
    }
    void key(SDL_Keycode code, SDL_Keymod mod) {
        key_event(code, mod, true);
        key_event(code, mod, false);
    }
    // A command's key as the table binds it; the modifier goes down first
    // and comes up last, as on a keyboard.
    void command_key() {
        static const std::vector<int> keyed = [] {
            std::vector<int> found;
            for (int c = 0; c < command_count; ++c)
                if (commands::has_key(c)) found.push_back(c);
            return found;
        }();
        const Command_Record& c = command_table[keyed[below(uint32_t(keyed.size()))]];
        const SDL_Keymod mod = c.modifier == modifier_shift ? SDL_KMOD_LSHIFT
                               : c.modifier == modifier_ctrl ? SDL_KMOD_LCTRL
                               : c.modifier == modifier_alt  ? SDL_KMOD_LALT
                                                             : SDL_KMOD_NONE;
        const SDL_Keycode held = mod == SDL_KMOD_LSHIFT ? SDLK_LSHIFT : mod == SDL_KMOD_LCTRL ? SDLK_LCTRL : SDLK_LALT;
        if (mod != SDL_KMOD_NONE) key_event(held, mod, true);
        key(SDL_Keycode(c.key), mod);
        if (mod != SDL_KMOD_NONE) key_event(held, SDL_KMOD_NONE, false);
    }
    void answer_key(bool closing) {
        key(answer_keys[below(closing ? 4 : uint32_t(std::size(answer_keys)))], SDL_KMOD_NONE);
    }
    void button(Uint8 which, bool down) {
        SDL_MouseButtonEvent& b = push(down ? SDL_EVENT_MOUSE_BUTTON_DOWN : SDL_EVENT_MOUSE_BUTTON_UP).button;
        b.button = which;
        b.down = down;
        b.clicks = 1;
        b.x = x;
        b.y = y;
        held = down ? held | SDL_BUTTON_MASK(which) : held & ~SDL_BUTTON_MASK(which);
    }
    // In even steps, each motion carrying its own movement and the buttons held.
    void move_to(SDL_Point to, int steps) {
        const float from_x = x, from_y = y;
        for (int i = 1; i <= steps; ++i) {
            SDL_MouseMotionEvent& m = push(SDL_EVENT_MOUSE_MOTION).motion;
            m.state = held;
            m.x = float(int(from_x + (float(to.x) - from_x) * float(i) / float(steps)));
            m.y = float(int(from_y + (float(to.y) - from_y) * float(i) / float(steps)));
            m.xrel = m.x - x;
            m.yrel = m.y - y;
            x = m.x;
            y = m.y;
        }
    }
    void click(SDL_Point at) {
        move_to(at, 1);
        const Uint8 which = below(4) == 0 ? SDL_BUTTON_RIGHT : SDL_BUTTON_LEFT;
        button(which, true);
        button(which, false);
    }
    // A menu title, then somewhere down the menu that drops below it.
    void menu_pick() {
        const SDL_Point title{int(below(360)), int(below(25))};
        click(title);
        click(SDL_Point{title.x + int(below(160)) - 20, 25 + int(below(340))});
    }
    // Mostly short strokes that stay near the press, sometimes across the window.
    void drag(Uint8 which) {
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
    void wheel() {
        move_to(somewhere(), 1);
        SDL_MouseWheelEvent& w = push(SDL_EVENT_MOUSE_WHEEL).wheel;
        w.y = below(2) ? 1.0f : -1.0f;
        w.mouse_x = x;
        w.mouse_y = y;
    }
    // Ctrl with the right button drags the canvas.
    void pan() {
        key_event(SDLK_LCTRL, SDL_KMOD_LCTRL, true);
        drag(SDL_BUTTON_RIGHT);
        key_event(SDLK_LCTRL, SDL_KMOD_NONE, false);
    }

    uint64_t state;
    uint64_t clock_ms = 0;
    std::deque<SDL_Event> planned;
    float x = 600, y = 300;
    SDL_MouseButtonFlags held = 0;
};

std::string describe(const SDL_Event& e) {
    char text[120];
    if (e.type == SDL_EVENT_KEY_DOWN || e.type == SDL_EVENT_KEY_UP)
        std::snprintf(text, sizeof text, "key %s \"%s\" mod 0x%x", e.key.down ? "down" : "up", SDL_GetKeyName(e.key.key),
                      unsigned(e.key.mod));
    else if (e.type == SDL_EVENT_MOUSE_BUTTON_DOWN || e.type == SDL_EVENT_MOUSE_BUTTON_UP)
        std::snprintf(text, sizeof text, "button %d %s at (%g, %g)", int(e.button.button), e.button.down ? "down" : "up",
                      double(e.button.x), double(e.button.y));
    else if (e.type == SDL_EVENT_MOUSE_MOTION)
        std::snprintf(text, sizeof text, "motion to (%g, %g) buttons 0x%x", double(e.motion.x), double(e.motion.y),
                      unsigned(e.motion.state));
    else
        std::snprintf(text, sizeof text, "event type 0x%x", unsigned(e.type));
    return text;
}

uint64_t from_environment(const char* name, uint64_t fallback) {
    const char* text = std::getenv(name);
    return text && *text ? std::strtoull(text, nullptr, 10) : fallback;
}

std::string in_range(const std::string& what, int value, int low, int high) {
    if (value >= low && value <= high) return {};
    return what + " " + std::to_string(value) + " outside " + std::to_string(low) + ".." + std::to_string(high);
}

// What must hold whenever any loop waits for the user.
std::string editor_fault() {
    Editor& e = *g_editor;
    Tileset* current = e.current();
    if (!current) return "no current tileset";
    bool listed = false;
    for (int i = 0; i < e.tilesets().count(); ++i) {
        Tileset& t = e.tilesets().at(i);
        listed = listed || &t == current;
        const std::string name = "tileset " + std::to_string(i) + " ";
        const int tiles = t.store().tile_count();
        const Undo_History& h = t.history();
        // The map follows the tile list: it never names a tile the tileset lacks.
        for (const std::string& fault :
             {in_range(name + "tile count", tiles, 1, Tileset::maximum_tiles),
              in_range(name + "current tile", t.store().current_index(), 0, tiles - 1),
              in_range(name + "strip start", t.strip().first(), 0, tiles - 1),
              in_range(name + "undo records", h.count(), 0, h.capacity()),
              in_range(name + "undo position", h.position(), h.count() ? 0 : -1, h.count() - 1),
              in_range(name + "highest tile on the map", t.map().map().highest_tile(), -1, tiles - 1)})
            if (!fault.empty()) return fault;
    }
    if (!listed) return "the current tileset is not among the open ones";
    const std::string title = SDL_GetWindowTitle(g_main_window->window());
    const std::string expected = "Mosswick 0.88 - " + current->display_name();
    if (title != expected) return "title \"" + title + "\" where \"" + expected + "\" belongs";
    if (e.canvas().tile() != current->store().current_tile()) return "the canvas shows another tile than the current one";
    if (!commands::is_tool(e.current_tool())) return "current tool " + std::to_string(e.current_tool()) + " is no tool";
    return {};
}

// The editor's files go to data/ below the working directory and nowhere
// else, and every excursion into data/ comes back.
class File_Guard {
public:
    File_Guard(const fs::path& outer, const fs::path& work)
        : work_dir(fs::canonical(work)), outer(outer), before(listing()) {}
    std::string fault() const {
        std::error_code ignored;
        if (fs::current_path(ignored) != work_dir) return "working directory left at " + fs::current_path(ignored).string();
        return listing() == before ? "" : "files appeared beside data/";
    }

private:
    std::set<std::string> listing() const {
        std::set<std::string> found;
        std::error_code ignored;
        for (const fs::path& dir : {outer, work_dir})
            for (const auto& entry : fs::directory_iterator(dir, ignored)) found.insert(entry.path().string());
        return found;
    }
    fs::path work_dir, outer;
    std::set<std::string> before;
};

void drop_queued_events() {
    SDL_PumpEvents();
    SDL_FlushEvents(SDL_EVENT_FIRST, SDL_EVENT_LAST);
}
}  // namespace

TEST(Soak, RandomInputThroughEveryLoopKeepsTheEditorConsistent) {
    const uint64_t seed = from_environment("MOSSWICK_SOAK_SEED", 20261123);
    const uint64_t count = from_environment("MOSSWICK_SOAK_EVENTS", 100000);

    // The program works in work/, inside a directory of the test's own, so
    // that a file written beside the working directory is seen too.
    Temp_Dir outer;
    const fs::path work = outer.path / "work";
    fs::create_directories(work / "data");
    fs::copy_file(source_path("data/pool.bmp"), work / "data" / "pool.bmp");
    const fs::path previous_dir = fs::current_path();
    File_Guard files(outer.path, work);
    fs::current_path(work);

    SDL_SetHint(SDL_HINT_VIDEO_DRIVER, "dummy");
    ASSERT_TRUE(SDL_InitSubSystem(SDL_INIT_VIDEO)) << SDL_GetError();
    Application::start_up();
    drop_queued_events();

    Soak_Events events(seed);
    // How far the stream got into the program, so that a run that no longer
    // reaches the dialogs shows.
    int modal_waits = 0, most_tilesets = 0, most_tiles = 0;
    uint64_t handed = 0;
    std::string last = "none yet";
    std::string failure;
    // File dialogs cancel, answer with an empty path or fail, as the stream says.
    set_file_chooser([&](int, const std::string&, std::string& chosen) {
        chosen.clear();
        const uint32_t answer = events.below(10);
        return answer < 6 ? file_cancelled : answer < 9 ? file_chosen : file_error;
    });
    std::printf("Soak: seed %llu, %llu events\n", (unsigned long long)seed, (unsigned long long)count);
    std::fflush(stdout);
    set_tick_source([&] { return events.now_ms(); });
    set_event_source([&](SDL_Event& event) {
        if (!failure.empty()) return false;
        failure = editor_fault();
        if (failure.empty()) failure = files.fault();
        if (!failure.empty() || handed >= count) return false;
        // What the program queued itself (a warped pointer's motion) comes
        // first, as it would from SDL.
        if (SDL_PollEvent(&event)) {
            last = "the program's own " + describe(event);
            return true;
        }
        modal_waits += Backdrop::depth() > 0;
        Tileset_List& open = g_editor->tilesets();
        most_tilesets = std::max(most_tilesets, open.count());
        for (int i = 0; i < open.count(); ++i) most_tiles = std::max(most_tiles, open.at(i).store().tile_count());
        event = events.next(Backdrop::depth() > 0);
        if (event.type != SDL_EVENT_QUIT) event.window.windowID = SDL_GetWindowID(g_main_window->window());
        last = "event " + std::to_string(handed) + ": " + describe(event);
        // A hang shows where it began within ten thousand events.
        if (++handed % 10000 == 0) {
            std::printf("Soak: %llu events handed out\n", (unsigned long long)handed);
            std::fflush(stdout);
        }
        return true;
    });

    const auto began = std::chrono::steady_clock::now();
    int restarts = 0;
    for (;;) {
        g_editor->run();
        if (!failure.empty() || handed >= count) break;
        // A confirmed quit: the program ends as it would, writing its data
        // files, and starts again in the same directory to take the rest.
        Application::shut_down();
        failure = files.fault();
        Application::start_up();
        drop_queued_events();
        ++restarts;
        if (!failure.empty()) break;
    }
    set_event_source(nullptr);
    set_tick_source(nullptr);
    set_file_chooser(nullptr);
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count();
    std::printf("Soak: %llu events in %.1f s, %d restarts after a quit; %d waits in modal layers, %d tilesets and "
                "%d tiles at most\n",
                (unsigned long long)handed, seconds, restarts, modal_waits, most_tilesets, most_tiles);

    EXPECT_TRUE(failure.empty()) << failure << "\n  seed " << seed << ", after " << last
                                 << "\n  replay: MOSSWICK_SOAK_SEED=" << seed << " MOSSWICK_SOAK_EVENTS=" << handed
                                 << " --gtest_filter=Soak.*";
    // A full run that no longer opens dialogs, a second tileset or a second
    // tile has stopped testing much; the stream needs new gestures then.
    if (count >= 100000 && handed >= count) {
        EXPECT_GT(modal_waits, 0);
        EXPECT_GT(most_tilesets, 1);
        EXPECT_GT(most_tiles, 1);
    }

    Application::shut_down();
    EXPECT_EQ(files.fault(), "") << "on shutting down";
    SDL_QuitSubSystem(SDL_INIT_VIDEO);
    SDL_Quit();
    fs::current_path(previous_dir);
}
