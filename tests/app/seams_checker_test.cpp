// A property checker: seeded random sequences of what changes a document
// (pen dabs, every tile-list command, selections lifted, moved, cloned and
// put down, copy and paste, arrange swaps, map strokes, terrains and
// layers, tab switches, saves and loads) with undo and redo interleaved, through the real editor. After
// each step it checks that
// - every undo and redo gives back exactly the state the user saw when that
//   step was current (tiles as drawn, their order, the map's cells), map
//   strokes and tileset steps undone in the order they were made;
// - a save followed by a load gives back what the user saw, floating image
//   included;
// - a tileset that differs from its last saved file is marked modified.
// MOSSWICK_CHECKER_SEED and MOSSWICK_CHECKER_STEPS replay or lengthen a run.

#include <chrono>
#include <cstdlib>
#include <deque>
#include <map>
#include <string_view>
#include <optional>
#include <functional>
#include <random>
#include <sstream>

#include "app/tool_options.h"
#include "features/viewers/arrange_dialog.h"
#include "features/color/color_tools.h"
#include "model/tileset/tileset_file.h"
#include "model/map/map_file.h"
#include "support/editor_fixture.h"
#include "ui/ui_globals.h"

namespace {

// What the user sees of a tileset: each tile as drawn (the current one with
// its floating image put down and without a seam offset), and the map's
// layers with their cells (whether a layer is shown is a look, not an edit).
struct Seen {
    std::vector<std::vector<uint32_t>> tiles;
    std::vector<int> cells;
    std::vector<std::string> layers;
    bool operator==(const Seen&) const = default;
};

// The tiles of a store, the current one replaced by what is shown of it, and a map.
Seen seen_of(const Tile_Store& store, const Tile* shown, const Map_Editor& map_editor) {
    Seen s;
    for (int i = 0; i < store.tile_count(); ++i) {
        const Tile* tile = shown && i == store.current_index() ? shown : store.tile_at(i);
        s.tiles.emplace_back();
        for (int p = 0; p < tile->pixel_count(); ++p) s.tiles.back().push_back(tile->pixels()[p].word());
    }
    for (int l = 0; l < map_editor.layer_count(); ++l) {
        const Tile_Map& map = map_editor.layer(l).cells;
        s.layers.push_back(map_editor.layer(l).name);
        for (int c = 0; c < map.cell_count(); ++c) s.cells.push_back(map.at(c) < 0 ? -1 : map.at(c) * 8 + map.turn_at(c));
    }
    return s;
}

Seen seen(Tileset& t) {
    const std::unique_ptr<Tile> shown = g_editor->current() == &t ? g_editor->canvas().tile_as_shown() : nullptr;
    return seen_of(t.store(), shown.get(), t.map());
}

std::string describe(const Seen& a, const Seen& b) {
    std::ostringstream out;
    out << "tiles " << a.tiles.size() << " vs " << b.tiles.size() << (a.tiles == b.tiles ? "" : ", tiles differ")
        << (a.cells == b.cells ? "" : ", cells differ") << (a.layers == b.layers ? "" : ", layers differ");
    return out.str();
}

// The steps of one tileset in the order they were made, each with what the
// user saw after it: 't' a step of the tileset's history, 'm' a map stroke.
struct Track {
    std::vector<std::pair<char, Seen>> steps;
    size_t at = 0;
    const Undo_Node* top = nullptr;
    size_t map_steps = 0;
    std::optional<Seen> saved;
};

uint64_t from_environment(const char* name, uint64_t fallback) {
    const char* text = std::getenv(name);
    return text ? std::strtoull(text, nullptr, 10) : fallback;
}

}  // namespace

class Checker : public Editor_Fixture {
protected:
    int pick(int n) { return int(random() % uint64_t(n)); }
    Tileset& current() { return *g_editor->current(); }

    SDL_Point random_cell() {
        const Tile* tile = g_editor->canvas().tile();
        return cell_centre(pick(tile->width()), pick(tile->height()));
    }

    // A drag on the canvas with the current tool, notes answered with Escape.
    void drag(SDL_Point from, SDL_Point to) {
        Event_Script script;
        script.then([to] { push_motion(to.x, to.y, SDL_BUTTON_LMASK); });
        script.then([to] { push_button(to.x, to.y, false); });
        for (int i = 0; i < 4; ++i) script.then([] { push_key(SDLK_ESCAPE); });
        push_button(from.x, from.y, true);
        pump();
        drop_pending_events();
    }

    void arrange_swap() {
        const int count = current().store().tile_count();
        if (count < 2) return;
        const int a = pick(count);
        const int b = pick(count);
        Arrange_Dialog probe(16, 16, 32, 32, current().store());
        const Rectangle g = probe.grid();
        auto centre = [g](int i) { return SDL_Point{g.x + (i % 16) * 32 + 16, g.y + (i / 16) * 32 + 16}; };
        Event_Script script;
        script.then([=] {
            push_click(centre(a).x, centre(a).y);
            push_click(centre(b).x, centre(b).y, SDL_BUTTON_RIGHT);
            push_key(SDLK_TAB);
            push_key(SDLK_RETURN);
        });
        for (int i = 0; i < 4; ++i) script.then([] { push_key(SDLK_ESCAPE); });
        g_editor->run_command(command_arrange_select);
        drop_pending_events();
    }

    void map_stroke() {
        Map_Editor& map = current().map();
        const int tile = pick(current().store().tile_count() + 1) - 1;
        map.begin_stroke();
        const int x = pick(map.map().columns());
        const int y = pick(map.map().rows());
        map.paint_line(x, y, x + pick(5), y + pick(3), tile, pick(8));
        map.end_stroke();
    }

    // Corners marked on a tile (which fills cells left for that combination),
    // or a terrain stroke over a few corners.
    void terrain_step() {
        Map_Editor& map = current().map();
        Terrain_Set set = map.terrain();
        while (set.terrain_count() < 2) set.add_terrain();
        if (pick(3) == 0 || map.terrain().terrain_count() < 2) {
            set.set_corners(pick(current().store().tile_count()),
                            {uint8_t(pick(3)), uint8_t(pick(3)), uint8_t(pick(3)), uint8_t(pick(3))});
            map.set_terrain(set);
            return;
        }
        map.begin_stroke();
        const int x = pick(map.map().columns()), y = pick(map.map().rows());
        for (int k = 0; k < 4; ++k) map.paint_terrain(x + k % 2, y + k / 2, 1 + pick(2));
        map.end_stroke();
    }

    // A change of the map's layers, or a layer chosen, shown or hidden.
    void layer_step() {
        Map_Editor& map = current().map();
        const int n = map.layer_count();
        switch (pick(6)) {
            case 0: map.add_layer(); break;
            case 1: map.remove_layer(); break;
            case 2: map.rename_layer(pick(n), "L" + std::to_string(pick(50))); break;
            case 3: map.move_layer(pick(n), pick(n)); break;
            case 4: map.choose_layer(pick(n)); break;
            default: map.show_layer(pick(n), pick(2) == 0); break;
        }
    }

    void select_rectangle() {
        run(command_rectangle_selector);
        drag(random_cell(), random_cell());
    }

    void work_drag() {
        run(command_work_selection);
        Canvas_View& view = g_editor->canvas();
        SDL_Point from = random_cell();
        // Mostly from the selection or the image, so that it lifts and moves.
        const Tile* tile = view.tile();
        for (int tries = 0; tries < 40 && pick(4) != 0; ++tries) {
            const int x = pick(tile->width());
            const int y = pick(tile->height());
            if (view.tile_selection().on_float(x, y) || (view.tile_selection().active() && view.tile_selection().mask()->is_white(x, y))) {
                from = cell_centre(x, y);
                break;
            }
        }
        drag(from, random_cell());
    }

    void pen_dab() {
        run(command_pen);
        g_tool_options->color_tools().set_tool_color(
            0, Color(uint8_t(pick(256)), uint8_t(pick(256)), uint8_t(pick(256)), uint8_t(pick(2) ? 255 : pick(256))));
        const SDL_Point p = random_cell();
        drag(p, p);
    }

    void switch_tab() {
        Tileset_List& open = g_editor->tilesets();
        if (open.count() < 3 && pick(3) == 0) {
            const uint32_t size = pick(2) ? 16 : 24;
            ASSERT_TRUE(open.new_tileset(size, size));
        } else {
            open.make_current(open.at(pick(open.count())));
        }
        g_editor->relayout();
    }

    // Saved under a new name: reading the file and its map back gives what
    // the user saw, and the tileset is no longer marked modified.
    void save_and_load(Track& track) {
        Tileset& t = current();
        const Seen before = seen(t);
        const std::string path = (dir.path / ("check" + std::to_string(++saves) + ".wst")).string();
        answer_files_with(path);
        run(command_save_as);
        set_file_chooser(nullptr);
        ASSERT_FALSE(t.is_modified()) << log();
        ASSERT_TRUE(seen(t) == before) << "saving changed what the user sees\n" << log();
        track.saved = before;
        std::unique_ptr<Tile_Store> back = Tileset_File::read(path);
        ASSERT_NE(back, nullptr) << log();
        Map_Editor map(back->tile_width(), back->tile_height());
        Map_File::read(Map_File::map_path(path), map, back->tile_width(), back->tile_height(), back->tile_count());
        const Seen read = seen_of(*back, nullptr, map);
        ASSERT_TRUE(read == before) << "the saved file: " << describe(read, before) << "\n" << log();
    }

    // Undo of the latest step of the track, the tileset's or the map's.
    void undo(Track& track) {
        if (track.at == 0) return;
        Tileset& t = current();
        if (track.steps[track.at].first == 't') {
            const int position = t.history().position();
            run(command_undo);
            if (t.history().position() == position) {
                // The history's floor: the steps before it are gone for good.
                track.steps.erase(track.steps.begin(), track.steps.begin() + long(track.at));
                track.at = 0;
                return;
            }
        } else {
            ASSERT_TRUE(t.map().undo()) << log();
        }
        --track.at;
        expect_step(track, "undo");
    }

    void redo(Track& track) {
        if (track.at + 1 >= track.steps.size()) return;
        Tileset& t = current();
        if (track.steps[track.at + 1].first == 't')
            run(command_redo);
        else
            ASSERT_TRUE(t.map().redo()) << log();
        ++track.at;
        expect_step(track, "redo");
    }

    void expect_step(Track& track, const char* what) {
        const Seen now = seen(current());
        ASSERT_TRUE(now == track.steps[track.at].second)
            << what << " did not give back step " << track.at << ": " << describe(now, track.steps[track.at].second)
            << "\n"
            << log();
        remember_tops(track);
    }

    void remember_tops(Track& track) { remember_tops(track, current()); }
    void remember_tops(Track& track, Tileset& t) {
        track.top = t.history().position() >= 0 ? &t.history().at(t.history().position()) : nullptr;
        track.map_steps = t.map().history().count();
    }

    // After an operation other than undo and redo: a new step joins the
    // track, or nothing the user sees changed.
    // A tile change that puts a floating image down records that first, with
    // nothing changed to the eye: such a step holds what was seen before.
    void follow(Tileset& t, const Seen& before) {
        Track& track = track_of(t);
        const Undo_History& h = t.history();
        const Undo_Node* top = h.position() >= 0 ? &h.at(h.position()) : nullptr;
        const Seen now = seen(t);
        int records = 0;
        if (top != track.top) {
            records = 1;
            for (int i = 0; i <= h.position(); ++i)
                if (&h.at(i) == track.top) records = h.position() - i;
        }
        if (records == 0 && t.map().history().count() != track.map_steps) {
            track.steps.resize(track.at + 1);
            track.steps.emplace_back('m', now);
            track.at = track.steps.size() - 1;
        } else if (records > 0) {
            track.steps.resize(track.at + 1);
            for (int r = 1; r < records; ++r) track.steps.emplace_back('t', before);
            track.steps.emplace_back('t', now);
            track.at = track.steps.size() - 1;
        } else {
            ASSERT_TRUE(now == track.steps[track.at].second)
                << "a change that is no step: " << describe(now, track.steps[track.at].second) << "\n"
                << log();
        }
        remember_tops(track, t);
    }

    void check_modified(Track& track) {
        if (!track.saved) return;
        if (!(seen(current()) == *track.saved)) {
            ASSERT_TRUE(current().is_modified()) << "unmarked change\n" << log();
        }
    }

    Track& track_of(Tileset& t) {
        auto [it, made] = tracks.try_emplace(&t);
        if (made) {
            it->second.steps.emplace_back('t', seen(t));
            remember_tops(it->second, t);
        }
        return it->second;
    }

    std::string log() const {
        std::ostringstream out;
        out << "seed " << seed << " (MOSSWICK_CHECKER_SEED=" << seed << " replays it); last operations:";
        for (const std::string& line : recent) out << "\n  " << line;
        return out.str();
    }

    uint64_t seed = from_environment("MOSSWICK_CHECKER_SEED", 20261123u);
    std::mt19937_64 random{seed};
    std::map<Tileset*, Track> tracks;
    std::deque<std::string> recent;
    Temp_Dir dir;
    int saves = 0;
};

TEST_F(Checker, UndoRedoSaveAndLoadGiveBackWhatTheUserSaw) {
    const auto start = std::chrono::steady_clock::now();
    const int steps = int(from_environment("MOSSWICK_CHECKER_STEPS", 3000));
    Track* track = nullptr;
    // Everything undone, then everything redone: back where it was.
    auto sweep = [&] {
        const Seen before = seen(current());
        const size_t back_to = track->steps.size() - track->at;  // steps after the floor may go
        while (track->at > 0 && !HasFatalFailure()) undo(*track);
        while (track->steps.size() - track->at > back_to && !HasFatalFailure()) redo(*track);
        ASSERT_TRUE(seen(current()) == before)
            << "undo all, redo all: " << describe(seen(current()), before) << "\n" << log();
    };
    // What changes the document, then undo, redo and the sweep, which follow no new step.
    const struct {
        const char* name;
        int weight;
        std::function<void()> run;
    } operations[] = {
        {"pen dab", 8, [&] { pen_dab(); }},
        {"add tile", 2, [] { run(command_add_new_tile); }},
        {"insert tile", 2, [] { run(command_insert_new_tile); }},
        {"delete tile", 3, [] { run(command_delete_tile); }},
        {"next tile", 2, [] { run(command_next_tile); }},
        {"previous tile", 2, [] { run(command_previous_tile); }},
        {"select rectangle", 5, [&] { select_rectangle(); }},
        {"work drag", 6, [&] { work_drag(); }},
        {"copy", 2, [] { run(command_copy); }},
        {"cut", 2, [] { run(command_cut); }},
        {"paste", 3, [] { run(command_paste); }},
        {"clone", 2, [] { run(command_clone); }},
        {"deselect", 2, [] { run(command_deselect); }},
        {"selection mode", 1, [&] { g_tool_options->set_selection_mode(pick(3)); }},
        {"map stroke", 4, [&] { map_stroke(); }},
        {"terrain", 3, [&] { terrain_step(); }},
        {"layer", 3, [&] { layer_step(); }},
        {"arrange swap", 1, [&] { arrange_swap(); }},
        {"tab", 2, [&] { switch_tab(); }},
        {"save and load", 1, [&] { save_and_load(*track); }},
        {"undo", 12, [&] { undo(*track); }},
        {"redo", 6, [&] { redo(*track); }},
        {"sweep", 1, sweep},
    };
    // Every operation before undo changes what the user sees; a tab switch
    // leaves the tileset it left as it was.
    auto index_of = [&](std::string_view name) {
        int i = 0;
        while (operations[i].name != name) ++i;
        return i;
    };
    const int changes = index_of("undo"), tab = index_of("tab");
    int total = 0;
    for (const auto& o : operations) total += o.weight;
    int step = 0;
    for (; step < steps; ++step) {
        if (std::chrono::steady_clock::now() - start > std::chrono::seconds(60)) break;
        Tileset& t = current();
        track = &track_of(t);
        int roll = pick(total);
        int op = 0;
        while (roll >= operations[op].weight) roll -= operations[op++].weight;
        char line[200];
        std::snprintf(line, sizeof line, "%d: %s on %s, tile %d of %d, record %d of %d, step %zu of %zu%s", step,
                      operations[op].name, t.path().name.c_str(), t.store().current_index(), t.store().tile_count(),
                      t.history().position(), t.history().count(), track->at, track->steps.size(),
                      g_editor->canvas().tile_selection().float_pending() ? ", floating" : "");
        recent.push_back(line);
        if (recent.size() > 12) recent.pop_front();
        const Seen before = op < changes ? seen(t) : Seen{};
        operations[op].run();
        if (HasFatalFailure()) return;
        if (op < changes) follow(current(), &current() == &t ? before : seen(current()));
        if (op == tab && &t != g_editor->current()) follow(t, before);
        if (HasFatalFailure()) return;
        check_modified(track_of(current()));
        if (HasFatalFailure()) return;
    }
    RecordProperty("steps", step);
    std::printf("checker: seed %llu, %d steps\n", static_cast<unsigned long long>(seed), step);
}
