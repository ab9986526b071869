// A long seeded stream of random input through the real main loop and every
// modal loop it opens, with the editor's consistency checked before each
// event is handed out. MOSSWICK_SOAK_SEED and MOSSWICK_SOAK_EVENTS replay or
// extend a run; a failure names both.
#include <gtest/gtest.h>
#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/common_interface_defs.h>
#endif

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "app/application.h"
#include "app/canvas_view.h"
#include "model/core/commands.h"
#include "app/editor.h"
#include "app/file_dialog.h"
#include "platform/globals.h"
#include "platform/main_window.h"
#include "support/dir_watch.h"
#include "support/headless.h"
#include "support/soak_events.h"
#include "ui/backdrop.h"
#include "platform/event_source.h"

namespace fs = std::filesystem;

namespace {
uint64_t from_environment(const char* name, uint64_t fallback) {
    const char* text = std::getenv(name);
    return text && *text ? std::strtoull(text, nullptr, 10) : fallback;
}

std::string in_range(const char* what, int value, int low, int high) {
    if (value >= low && value <= high) return {};
    return std::string(what) + " " + std::to_string(value) + " outside " + std::to_string(low) + ".." +
           std::to_string(high);
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
        std::string fault = in_range((name + "tile count").c_str(), tiles, 1, Tileset::maximum_tiles);
        if (fault.empty()) fault = in_range((name + "current tile").c_str(), t.store().current_index(), 0, tiles - 1);
        if (fault.empty()) fault = in_range((name + "strip start").c_str(), t.strip().first(), 0, tiles - 1);
        const Undo_History& h = t.history();
        if (fault.empty()) fault = in_range((name + "undo records").c_str(), h.count(), 0, h.capacity());
        if (fault.empty()) fault = in_range((name + "undo position").c_str(), h.position(), h.count() ? 0 : -1, h.count() - 1);
        // The map follows the tile list: it never names a tile the tileset lacks.
        if (fault.empty()) fault = in_range((name + "highest tile on the map").c_str(), t.map().map().highest_tile(), -1, tiles - 1);
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

// The editor's files go to data/ below the working directory and nowhere else.
class File_Guard {
public:
    File_Guard(const fs::path& outer, const fs::path& work)
        : work_dir(fs::canonical(work)), watches{Dir_Watch(outer), Dir_Watch(work)} {
        const fs::path start = fs::current_path();
        for (const fs::path& p : {start, start.parent_path(), fs::path(MOSSWICK_SOURCE_DIR)})
            watches.emplace_back(p);
    }
    std::string fault() {
        std::error_code ignored;
        if (fs::current_path(ignored) != work_dir) return "working directory left at " + fs::current_path(ignored).string();
        for (Dir_Watch& w : watches)
            if (std::string found = w.changes(); !found.empty()) return "new files:" + found;
        return {};
    }

private:
    fs::path work_dir;
    std::vector<Dir_Watch> watches;
};

// How far the stream got into the program, so that a run that no longer
// reaches the dialogs shows.
struct Reach {
    int modal_waits = 0;
    int deepest = 0;
    int most_tilesets = 0;
    int most_tiles = 0;
    void note() {
        modal_waits += Backdrop::depth() > 0;
        deepest = std::max(deepest, Backdrop::depth());
        Tileset_List& open = g_editor->tilesets();
        most_tilesets = std::max(most_tilesets, open.count());
        for (int i = 0; i < open.count(); ++i) most_tiles = std::max(most_tiles, open.at(i).store().tile_count());
    }
};

// Where the run stands, for a report from a crash or a sanitizer's error,
// which ends the process before the test can say anything.
struct Run_State {
    uint64_t seed = 0;
    const uint64_t* handed = nullptr;
    const std::string* last = nullptr;
};
Run_State run_state;

void report_death() {
    if (run_state.handed)
        std::fprintf(stderr, "Soak ended abruptly: seed %llu, after %s\n  replay: MOSSWICK_SOAK_SEED=%llu MOSSWICK_SOAK_EVENTS=%llu\n",
                     (unsigned long long)run_state.seed, run_state.last->c_str(), (unsigned long long)run_state.seed,
                     (unsigned long long)*run_state.handed);
}

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
    Reach reach;
    uint64_t handed = 0;
    std::string last = "none yet";
    std::string failure;
    // File dialogs cancel, answer with an empty path or fail, as the stream says.
    set_file_chooser([&](int, const std::string&, std::string& chosen) {
        chosen.clear();
        const uint32_t answer = events.below(10);
        return answer < 6 ? file_cancelled : answer < 9 ? file_chosen : file_error;
    });
    run_state = Run_State{seed, &handed, &last};
#ifdef __SANITIZE_ADDRESS__
    __sanitizer_set_death_callback(report_death);
#endif
    std::printf("Soak: seed %llu, %llu events\n", (unsigned long long)seed, (unsigned long long)count);
    std::fflush(stdout);
    set_tick_source([&] { return events.now_ms(); });
    set_event_source([&](SDL_Event& event) {
        if (!failure.empty()) return false;
        std::string fault = editor_fault();
        if (fault.empty()) fault = files.fault();
        if (!fault.empty()) {
            failure = fault;
            return false;
        }
        if (handed >= count) return false;
        // What the program queued itself (a warped pointer's motion) comes
        // first, as it would from SDL.
        if (SDL_PollEvent(&event)) {
            last = "the program's own " + Soak_Events::describe(event);
            return true;
        }
        reach.note();
        event = events.next(Backdrop::depth() > 0);
        if (event.type != SDL_EVENT_QUIT) event.window.windowID = SDL_GetWindowID(g_main_window->window());
        last = "event " + std::to_string(handed) + ": " + Soak_Events::describe(event);
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
        if (std::string fault = files.fault(); !fault.empty()) failure = fault;
        Application::start_up();
        drop_queued_events();
        ++restarts;
        if (!failure.empty()) break;
    }
    set_event_source(nullptr);
#ifdef __SANITIZE_ADDRESS__
    __sanitizer_set_death_callback(nullptr);
#endif
    run_state = Run_State{};
    set_tick_source(nullptr);
    set_file_chooser(nullptr);
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count();
    std::printf("Soak: %llu events in %.1f s, %d restarts after a quit; %d waits in modal layers (%d deep "
                "at most), %d tilesets and %d tiles at most\n",
                (unsigned long long)handed, seconds, restarts, reach.modal_waits,
                reach.deepest, reach.most_tilesets, reach.most_tiles);

    EXPECT_TRUE(failure.empty()) << failure << "\n  seed " << seed << ", after " << last
                                 << "\n  replay: MOSSWICK_SOAK_SEED=" << seed << " MOSSWICK_SOAK_EVENTS=" << handed
                                 << " --gtest_filter=Soak.*";

    // A full run that no longer opens dialogs, a second tileset or a second
    // tile has stopped testing much; the stream needs new gestures then.
    if (count >= 100000 && handed >= count) {
        EXPECT_GT(reach.modal_waits, 0);
        EXPECT_GT(reach.most_tilesets, 1);
        EXPECT_GT(reach.most_tiles, 1);
    }

    Application::shut_down();
    EXPECT_EQ(files.fault(), "") << "on shutting down";
    SDL_QuitSubSystem(SDL_INIT_VIDEO);
    SDL_Quit();
    fs::current_path(previous_dir);
}
