#include <filesystem>

#include "app/file_dialog.h"
#include "platform/picture_file.h"
#include "ui/message_box.h"
#include "ui/ui_globals.h"
#include "app/tile_views.h"

#include <algorithm>

#include "model/core/commands.h"
#include "features/viewers/arrange_dialog.h"
#include "model/tileset/tileset.h"
#include "features/map/map_view.h"
#include "ui/options.h"
#include "features/viewers/real_size_view.h"
#include "features/viewers/repeated_view.h"
#include "ui/ui_globals.h"

namespace {
constexpr int default_checker = 6;

// A tile chosen in a view is shown in the strip too, as a click there would.
int chose(Tileset& tileset) {
    tileset.strip().make_current_visible();
    return command_select_tile;
}
}  // namespace

int view_in_real_size(Tileset& tileset) {
    Tile_Store& store = tileset.store();
    const int chosen = show_real_size(store);
    if (chosen == store.current_index()) return -1;
    store.go_to(chosen);
    return chose(tileset);
}

int arrange_tiles(Tileset& tileset, std::vector<int>& order) {
    Tile_Store& store = tileset.store();
    const int before = store.current_index();
    std::vector<const Tile*> was;
    for (const auto& tile : store.all()) was.push_back(tile.get());
    Arrange_Dialog dialog(Arrange_Dialog::default_columns, Arrange_Dialog::default_rows,
                          Arrange_Dialog::default_cell, Arrange_Dialog::default_cell, store);
    if (dialog.run()) {
        order.clear();
        for (const auto& tile : store.all())
            order.push_back(int(std::find(was.begin(), was.end(), tile.get()) - was.begin()));
        tileset.strip().make_current_visible();
        return command_arrange_select;
    }
    return store.current_index() == before ? -1 : chose(tileset);
}

int edit_map(Tileset& tileset) {
    Tile_Store& store = tileset.store();
    // The map's image as a PNG beside the tileset, under a name the user confirms.
    auto save_image = [&tileset](const Picture& image) {
        File_Path chosen;
        chosen.set((std::filesystem::path(tileset.path().full).parent_path() / (tileset.path().name + "-map.png")).string());
        if (!choose_file(file_save_png, chosen)) return;
        if (!picture_file::write(chosen.full, image, safe_file::Links::follow))
            g_message_box->note("Could not save the file.");
    };
    const Map_View::Outcome outcome = show_map_editor(tileset.map(), store, tileset.path().name, save_image);
    // The map's own changes mark the tileset; the title follows them.
    if (outcome.changed) tileset.refresh_modified();
    if (outcome.chosen < 0 || outcome.chosen == store.current_index()) return -1;
    store.go_to(outcome.chosen);
    return chose(tileset);
}

void view_tile_array(Tileset& tileset) {
    const Tile* tile = tileset.store().current_tile();
    if (!tile) return;
    const int w = g_options ? g_options->get(Options::alpha_grid_width) : default_checker;
    const int h = g_options ? g_options->get(Options::alpha_grid_height) : default_checker;
    show_repeated_view(*tile, w, h);
}
