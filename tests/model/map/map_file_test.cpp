// The map file beside a tileset: what it writes, and reading it back, also
// when it was damaged or made elsewhere.
#include "model/map/map_file.h"

#include <gtest/gtest.h>
#include <tinyxml2.h>

#include <fstream>
#include <sstream>
#include <string>

#include "model/map/map_editor.h"
#include "support/scratch_dir.h"

namespace {

void write_text(const std::string& path, const std::string& text) { std::ofstream(path, std::ios::binary) << text; }

// A map of 6 x 6 tiles on a 4 x 3 layer, as another program might write it.
std::string foreign_map(const std::string& layer_size, const std::string& csv, int tile = 24,
                        const std::string& encoding = "csv") {
    const std::string t = std::to_string(tile);
    return "<?xml version=\"1.0\"?>\n<map orientation=\"orthogonal\" width=\"4\" height=\"3\" tilewidth=\"" + t +
           "\" tileheight=\"" + t + "\">\n<tileset firstgid=\"1\" name=\"x\"/>\n<layer " + layer_size +
           "><data encoding=\"" + encoding + "\">" + csv + "</data></layer></map>\n";
}

TEST(MapFile, ARoundTripKeepsEveryCellAndTheFileSaysWhatTiledReads) {
    Scratch_Dir dir;
    // The whole name but its extension: two tilesets never share a map.
    EXPECT_EQ(Map_File::map_path(dir.file("forest.v2.wst")), dir.file("forest.v2.tmx"));
    EXPECT_EQ(Map_File::map_path("/a.b/forest"), "/a.b/forest.tmx");
    EXPECT_EQ(Map_File::sheet_path(dir.file("forest.wst")), dir.file("forest.bmp"));

    Map_Editor m(24, 32);  // 20 x 15 cells
    m.place(0, 0, 0);
    m.place(19, 0, 255);
    m.place(3, 7, 12);
    m.place(0, 14, 1);
    const std::string path = dir.file("forest.tmx");
    ASSERT_TRUE(Map_File::write(m, 24, 32, path));

    Map_Editor back(24, 32);
    const Map_File::Reading r = Map_File::read(path, back, 24, 32, 256);
    EXPECT_TRUE(r.found);
    EXPECT_TRUE(r.whole) << r.problems;
    EXPECT_EQ(r.cells, 4);
    for (int c = 0; c < m.map().cell_count(); ++c) ASSERT_EQ(back.map().at(c), m.map().at(c)) << "cell " << c;

    tinyxml2::XMLDocument doc;
    ASSERT_EQ(doc.LoadFile(path.c_str()), tinyxml2::XML_SUCCESS);
    const tinyxml2::XMLElement* map = doc.RootElement();
    auto attributes = [](const tinyxml2::XMLElement* e, std::initializer_list<const char*> names) {
        std::string all;
        for (const char* n : names) all += std::string(n) + "=" + (e && e->Attribute(n) ? e->Attribute(n) : "-") + " ";
        return all;
    };
    // Some loaders refuse maps without a tiledversion; the sheet lies beside the map.
    EXPECT_EQ(attributes(map, {"orientation", "renderorder", "tiledversion", "width", "height", "tilewidth",
                               "tileheight"}),
              std::string("orientation=orthogonal renderorder=right-down tiledversion=") + Map_File::tiled_version +
                  " width=20 height=15 tilewidth=24 tileheight=32 ");
    const tinyxml2::XMLElement* tileset = map->FirstChildElement("tileset");
    EXPECT_EQ(attributes(tileset, {"firstgid", "columns", "tilecount"}), "firstgid=1 columns=16 tilecount=256 ");
    EXPECT_EQ(attributes(tileset ? tileset->FirstChildElement("image") : nullptr, {"source", "width", "height"}),
              "source=forest.bmp width=384 height=512 ");
    const tinyxml2::XMLElement* layer = map->FirstChildElement("layer");
    ASSERT_NE(layer, nullptr);
    EXPECT_EQ(layer->NextSiblingElement("layer"), nullptr);
    const tinyxml2::XMLElement* data = layer->FirstChildElement("data");
    ASSERT_NE(data, nullptr);
    EXPECT_STREQ(data->Attribute("encoding"), "csv");
    // One row of the map to a line: the first row holds tile 0 and tile 255 as 1 and 256.
    std::istringstream csv(data->GetText());
    std::string line;
    std::getline(csv, line);
    EXPECT_EQ(line, "");
    std::getline(csv, line);
    EXPECT_EQ(line, "1,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,256,");
    int lines = 1;
    while (std::getline(csv, line)) lines += !line.empty();
    EXPECT_EQ(lines, 15);
    EXPECT_FALSE(std::filesystem::exists(path + ".part"));

    // A place that cannot be written fails and leaves nothing behind.
    EXPECT_FALSE(Map_File::write(m, 24, 32, dir.file("missing/forest.tmx")));
}

// Cells 1,2,0,3 / 0,0,4,1 as other map tools store them (packed by Python's
// zlib and gzip and by the zstd command), a layer in each encoding, with an
// object layer between them and a layer in XML this editor does not read.
// Each layer is read; edited here (renamed, hidden, moved, removed, one
// added) each is written back in the encoding it came in, and the rest of
// the file stays as it was.
TEST(MapFile, EveryLayerInEveryEncodingIsReadAndWrittenBackInItsOwn) {
    const std::vector<std::pair<std::string, std::string>> encodings{
        {"csv", "1,2,0,3\n0,0,4,1"},  // rows need no comma at their end
        {"base64", "AQAAAAIAAAAAAAAAAwAAAAAAAAAAAAAABAAAAAEAAAA="},
        {"base64\" compression=\"zlib", "eJxjZGBgYGKAAGYGBGABYkYgBgAA2AAM"},
        {"base64\" compression=\"gzip", "H4sIAAAAAAACA2NkYGBgYoAAZgYEYAFiRiAGAGiO5HggAAAA"},
        {"base64\" compression=\"zstd", "KLUv/QRYxQAAgAEAAAACAAMABAAAAAEAAAACAGDjARQBx1QawA=="}};
    const std::string objects = "<objectgroup id=\"9\" name=\"spawns\"><object id=\"1\" x=\"3\" y=\"4\"/></objectgroup>";
    const std::string xml_layer =
        "<layer id=\"8\" name=\"old\" width=\"1\" height=\"1\"><data><tile gid=\"1\"/></data></layer>";
    std::string text = "<map orientation=\"orthogonal\" width=\"4\" height=\"2\" tilewidth=\"24\" tileheight=\"24\" "
                       "nextlayerid=\"10\">\n <tileset firstgid=\"1\" name=\"x\"/>\n";
    for (size_t i = 0; i < encodings.size(); ++i) {
        text += " <layer id=\"" + std::to_string(i + 1) + "\" name=\"L" + std::to_string(i) +
                "\" width=\"4\" height=\"2\"><data encoding=\"" + encodings[i].first + "\">" + encodings[i].second +
                "</data></layer>\n";
        if (i == 1) text += " " + objects + "\n " + xml_layer + "\n";
    }
    text += "</map>\n";
    Scratch_Dir dir;
    const std::string path = dir.file("enc.tmx");
    write_text(path, text);
    Map_Editor m(24, 24);
    Map_File::Reading r = Map_File::read(path, m, 24, 24, 10);
    EXPECT_EQ(r.problems, "Its tile layer \"old\" is stored in a way this editor does not read (XML), so no cell was read.");
    ASSERT_EQ(m.layer_count(), 5);
    for (int i = 0; i < 5; ++i) {
        const Tile_Map& cells = m.layer(i).cells;
        EXPECT_EQ(m.layer(i).name, "L" + std::to_string(i));
        EXPECT_EQ(cells.at(0, 0) * 1000 + cells.at(1, 0) * 100 + cells.at(3, 0) * 10 + cells.at(2, 1), 123) << i;
    }
    m.choose_layer(2);
    m.place(1, 1, 8);
    ASSERT_TRUE(m.rename_layer(0, "Ground & sea"));
    m.show_layer(3, false);
    ASSERT_TRUE(m.move_layer(4, 1));  // L4 (zstd) just above the ground
    m.choose_layer(3);                // L2
    ASSERT_TRUE(m.add_layer());       // above it, in CSV
    m.place(0, 1, 6);
    m.choose_layer(2);                // L1 (base64)
    ASSERT_TRUE(m.remove_layer());
    std::vector<int> ids;
    ASSERT_TRUE(Map_File::write(m, 24, 24, path, Map_File::text_of(path), &ids));
    m.layers_filed(ids);
    const std::string written = Map_File::text_of(path);
    EXPECT_NE(written.find(objects), std::string::npos) << written;
    EXPECT_NE(written.find(xml_layer), std::string::npos) << written;
    EXPECT_EQ(written.find("name=\"L1\""), std::string::npos) << "the layer removed is gone";
    for (size_t i = 0; i < encodings.size(); ++i)
        EXPECT_EQ(written.find("encoding=\"" + encodings[i].first + "\">") != std::string::npos, i != 1) << i;
    // The layers stand in the places of the ones read, in the map's order.
    EXPECT_LT(written.find("name=\"L4\""), written.find(objects));
    EXPECT_LT(written.find(xml_layer), written.find("name=\"L2\""));
    Map_Editor back(24, 24);
    r = Map_File::read(path, back, 24, 24, 10);
    ASSERT_EQ(back.layer_count(), m.layer_count());
    for (int i = 0; i < m.layer_count(); ++i) {
        EXPECT_EQ(back.layer(i).name, m.layer(i).name);
        EXPECT_EQ(back.layer(i).visible, m.layer(i).visible) << i;
        EXPECT_EQ(back.layer(i).id, m.layer(i).id) << i;
        for (int c = 0; c < m.layer(i).cells.cell_count(); ++c)
            ASSERT_EQ(back.layer(i).cells.at(c), m.layer(i).cells.at(c)) << i << " " << c;
    }
    // Written again unchanged, the file stays as it is.
    ASSERT_TRUE(Map_File::write(m, 24, 24, path, written));
    EXPECT_EQ(Map_File::text_of(path), written);
    // Cut short: nothing is read, and the reason is given.
    for (size_t i = 1; i < encodings.size(); ++i) {
        write_text(path, foreign_map("width=\"4\" height=\"2\"", encodings[i].second.substr(0, 12), 24, encodings[i].first));
        r = Map_File::read(path, back, 24, 24, 10);
        EXPECT_TRUE(!r.whole && r.cells == 0 && r.problems.find("unpacked") != std::string::npos) << r.problems;
    }
}

TEST(MapFile, TheTerrainSetIsACornerWangSetOfTheTilesetAndComesBack) {
    Scratch_Dir dir;
    const std::string path = dir.file("t.tmx");
    Map_Editor m(24, 24);
    Terrain_Set set;
    set.add_terrain(), set.add_terrain();
    set.name = "Shore & sea";
    set.set_corners(0, {1, 1, 1, 1});
    set.set_corners(4, {1, 1, 2, 1});
    m.set_terrain(set);
    m.place(2, 2, 4);
    ASSERT_TRUE(Map_File::write(m, 24, 24, path, {}));
    const std::string text = Map_File::text_of(path);
    EXPECT_NE(text.find("name=\"Shore &amp; sea\" type=\"corner\""), std::string::npos) << text;
    EXPECT_NE(text.find("<wangtile tileid=\"4\" wangid=\"0,1,0,2,0,1,0,1\"/>"), std::string::npos) << text;
    Map_Editor back(24, 24);
    EXPECT_TRUE(Map_File::read(path, back, 24, 24, 10).whole);
    EXPECT_TRUE(back.terrain() == set);
    EXPECT_EQ(back.wanted(2, 2), (Terrain_Set::Corners{1, 1, 2, 1})) << "corners follow the tiles read";

    // Another tool's tileset with a wang set of edges: kept, ours added; the
    // same map written again (knowing its layers' ids) leaves the file as it is.
    write_text(path, "<map width=\"4\" height=\"3\" tilewidth=\"24\" tileheight=\"24\"><tileset firstgid=\"1\">"
                     "<wangsets><wangset name=\"roads\" type=\"edge\"><wangcolor name=\"r\"/></wangset></wangsets>"
                     "</tileset><layer width=\"4\" height=\"3\"><data encoding=\"csv\">1,0,0,0,0,0,0,0,0,0,0,0</data></layer></map>");
    std::vector<int> ids;
    ASSERT_TRUE(Map_File::write(m, 24, 24, path, Map_File::text_of(path), &ids));
    m.layers_filed(ids);
    const std::string kept = Map_File::text_of(path);
    EXPECT_NE(kept.find("<wangset name=\"roads\" type=\"edge\"><wangcolor name=\"r\"/></wangset>"), std::string::npos);
    ASSERT_TRUE(Map_File::write(m, 24, 24, path, kept));
    EXPECT_EQ(Map_File::text_of(path), kept);
    EXPECT_TRUE(Map_File::read(path, back, 24, 24, 10).whole);
    EXPECT_TRUE(back.terrain() == set);
}

TEST(MapFile, TurnedCellsKeepTheirFlagsAndShowTurned) {
    Scratch_Dir dir;
    const std::string path = dir.file("turns.tmx");
    Map_Editor m(24, 24);
    for (int t = 0; t < 8; ++t) m.place(t, 0, 1, t);
    ASSERT_TRUE(Map_File::write(m, 24, 24, path));
    // Tile 1 is gid 2: flipped across it is 2 with the top bit, 2147483650.
    EXPECT_NE(Map_File::text_of(path).find("2,2147483650,1073741826,3221225474,536870914,"), std::string::npos);
    Map_Editor back(24, 24);
    EXPECT_TRUE(Map_File::read(path, back, 24, 24, 10).whole);
    for (int t = 0; t < 8; ++t) EXPECT_EQ(back.map().turn_at(t, 0), t);

    // A quarter turn clockwise takes the top left pixel to the top right;
    // four of them turn the tile back.
    Tile tile(6, 6);
    tile.set_pixel(0, 0, Color(255, 0, 0));
    int t = turn::none;
    t = turn::quarter_turned(t);
    EXPECT_EQ(turn::pixel(tile, t, 5, 0), Color(255, 0, 0));
    EXPECT_EQ(turn::pixel(tile, turn::flipped_v(turn::none), 0, 5), Color(255, 0, 0));
    for (int k = 0; k < 3; ++k) t = turn::quarter_turned(t);
    EXPECT_EQ(t, turn::none);
}

TEST(MapFile, DamagedAndForeignFilesAreReadAsFarAsTheyAreValid) {
    Scratch_Dir dir;
    const std::string path = dir.file("cave.tmx");
    auto read = [&](const std::string& text, int tiles = 10) {
        write_text(path, text);
        Map_Editor m(24, 24);  // 20 x 20 cells
        const Map_File::Reading r = Map_File::read(path, m, 24, 24, tiles);
        EXPECT_TRUE(r.found);
        return std::make_pair(r, m.map().highest_tile());
    };

    // A whole foreign map: cells land where they stand.
    auto [fine, fine_top] = read(foreign_map("width=\"4\" height=\"3\"", "1,2,3,4,\n0,0,0,0,\n0,0,0,10"));
    EXPECT_TRUE(fine.whole) << fine.problems;
    EXPECT_EQ(fine.cells, 5);
    EXPECT_EQ(fine_top, 9);

    // Gids past the tileset, words and huge numbers.
    auto [gids, gids_top] = read(foreign_map("width=\"4\" height=\"3\"", "1,11,999,0,\nx,99999999999,-3,0,\n0,0,0,2"));
    EXPECT_FALSE(gids.whole);
    EXPECT_EQ(gids.cells, 2);
    EXPECT_EQ(gids_top, 1);
    EXPECT_NE(gids.problems.find("2 cells named tiles"), std::string::npos) << gids.problems;
    EXPECT_NE(gids.problems.find("3 cells held no valid number"), std::string::npos) << gids.problems;

    // A layer larger than the map is cut; its tile size is another.
    std::string wide;
    for (int i = 0; i < 30 * 2; ++i) wide += (i ? "," : "") + std::to_string(i % 30 == 25 ? 4 : 1);
    auto [big, big_top] = read(foreign_map("width=\"30\" height=\"2\"", wide, 16));
    EXPECT_FALSE(big.whole);
    EXPECT_EQ(big.cells, 40) << "the 20 cells of each row that fit";
    EXPECT_EQ(big_top, 0);
    EXPECT_NE(big.problems.find("16 x 16"), std::string::npos) << big.problems;
    EXPECT_NE(big.problems.find("30 x 2"), std::string::npos) << big.problems;

    // Sizes that lie: a layer claiming billions of cells holds three; none at all; a negative one.
    auto [huge, huge_top] = read(foreign_map("width=\"2147483647\" height=\"2147483647\"", "1,2,3"));
    EXPECT_FALSE(huge.whole);
    EXPECT_EQ(huge.cells, 3) << "the three it holds, in the first row";
    EXPECT_NE(huge.problems.find("ends after 3"), std::string::npos) << huge.problems;
    auto [none, none_top] = read(foreign_map("width=\"0\" height=\"-5\"", "1,2,3"));
    EXPECT_FALSE(none.whole);
    EXPECT_EQ(none.cells, 0);

    // No layer, not a map, not XML, truncated, empty.
    const std::string written = foreign_map("width=\"4\" height=\"3\"", "1,2,3,4,\n5,6,7,8,\n9,1,2,3");
    for (const std::string& text :
         {std::string("<map tilewidth=\"24\" tileheight=\"24\" infinite=\"1\"><layer/></map>"),
          std::string("<?xml version=\"1.0\"?><tileset/>"), std::string("\x01\x02\xff WST not xml"),
          written.substr(0, written.size() / 2), written.substr(0, written.find("5,6")), std::string()}) {
        auto [damaged, damaged_top] = read(text);
        EXPECT_FALSE(damaged.whole) << text;
        if (text.find("infinite") != std::string::npos) {
            EXPECT_NE(damaged.problems.find("infinite map"), std::string::npos) << damaged.problems;
        }
        EXPECT_EQ(damaged.cells, 0) << text;
        EXPECT_FALSE(damaged.problems.empty());
    }

    // No file: nothing found, nothing to report.
    Map_Editor m(24, 24);
    const Map_File::Reading missing = Map_File::read(dir.file("none.tmx"), m, 24, 24, 10);
    EXPECT_FALSE(missing.found);
    EXPECT_TRUE(missing.problems.empty());
    // A directory of that name is no file either.
    std::filesystem::create_directory(dir.file("dir.tmx"));
    EXPECT_FALSE(Map_File::read(dir.file("dir.tmx"), m, 24, 24, 10).found);
}

}  // namespace
