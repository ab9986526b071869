#include "model/tileset/tileset_file.h"

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <filesystem>
#include <random>
#include <vector>

#include "model/tile/sheet.h"
#include "support/scratch_dir.h"

namespace {

using Bytes = std::vector<unsigned char>;

void randomise(Tile_Store& store, int count, std::mt19937& random) {
    for (int i = 0; i < count; ++i) {
        store.add_tile();
        Tile& tile = *store.current_tile();
        for (int k = 0; k < tile.pixel_count(); ++k) tile.pixels()[k] = Color::from_word(random());
    }
}

bool same_tiles(const Tile_Store& a, const Tile_Store& b) {
    if (a.tile_count() != b.tile_count() || a.tile_width() != b.tile_width() ||
        a.tile_height() != b.tile_height())
        return false;
    for (int i = 0; i < a.tile_count(); ++i) {
        const Tile& x = *a.tile_at(i);
        const Tile& y = *b.tile_at(i);
        if (!std::equal(x.pixels(), x.pixels() + x.pixel_count(), y.pixels())) return false;
    }
    return true;
}

// Later writes fail once a file would grow beyond the limit.
void limit_file_size(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, bytes};
    setrlimit(RLIMIT_FSIZE, &limit);
}

int32_t write_two_tiles(const std::string& path) {
    Tile_Store store(24, 24, 256);
    store.add_tile();
    store.add_tile();
    return Tileset_File::write(store, path);
}

// The header, then each pixel alpha, blue, green, red, row by row; sizes of
// 256 or more keep their low 8 bits.
TEST(TilesetFileWriting, TheHeaderThenPixelsAlphaBlueGreenRed) {
    Scratch_Dir dir;
    const std::string path = dir.file("order.wst");
    Tile_Store store(2, 1, 256);
    store.add_tile();
    store.current_tile()->set_pixel(0, 0, Color(0x11, 0x22, 0x33, 0x44));
    store.current_tile()->set_pixel(1, 0, Color(0x55, 0x66, 0x77, 0x88));
    ASSERT_EQ(Tileset_File::write(store, path), 11 + 8);
    EXPECT_EQ(read_bytes(path), (Bytes{'W', 'S', 'T', 0x0A, 0, 2, 1, 1, 0, 0, 0, 0x44, 0x33, 0x22, 0x11, 0x88, 0x77,
                                       0x66, 0x55}));
    Tile_Store wide(260, 1, 256);
    wide.add_tile();
    EXPECT_EQ(Tileset_File::write(wide, path), 11 + 260 * 4);
    EXPECT_EQ(read_bytes(path)[5], 4);
}

TEST(TilesetFileWriting, SavingThroughALinkReplacesWhatItPointsAt) {
    Scratch_Dir dir;
    const std::string real = dir.file("real.wst");
    const std::string link = dir.file("link.wst");
    write_bytes(real, {0});
    std::filesystem::create_symlink(real, link);
    Tile_Store store(6, 6, 256);
    store.add_tile();
    ASSERT_GT(Tileset_File::write(store, link), 0);
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(read_bytes(real).size(), 11u + 144);
}

TEST(TilesetFileWritingDeathTest, AFailedWriteLeavesThePreviousFileIntact) {
    Scratch_Dir dir;
    const std::string path = dir.file("keep.wst");
    const Bytes previous(100, 0xAB);
    write_bytes(path, previous);
    // The child may write files of at most 1000 bytes, so the 4619-byte
    // tileset cannot be written completely.
    EXPECT_EXIT(
        {
            limit_file_size(1000);
            std::_Exit(write_two_tiles(path) == -1 && read_bytes(path) == previous ? 0 : 2);
        },
        ::testing::ExitedWithCode(0), "");
    EXPECT_EQ(read_bytes(path), previous);
    int entries = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(dir.path()))
        ++entries;
    EXPECT_EQ(entries, 1);
}

TEST(TilesetFileRoundTrip, RandomTilesetsComeBackByteForByte) {
    Scratch_Dir dir;
    std::mt19937 random(2024);
    std::uniform_int_distribution<int> side(6, 64);
    std::uniform_int_distribution<int> count(1, 256);
    for (int round = 0; round < 12; ++round) {
        const int w = side(random), h = side(random);
        const int n = round == 0 ? 256 : round == 1 ? 1 : count(random);
        Tile_Store store(w, h, 256);
        randomise(store, n, random);
        const std::string path = dir.file("round" + std::to_string(round) + ".wst");
        const int32_t written = Tileset_File::write(store, path);
        ASSERT_EQ(written, int32_t(11 + uint64_t(n) * w * h * 4));
        std::unique_ptr<Tile_Store> back = Tileset_File::read(path);
        ASSERT_TRUE(back);
        EXPECT_TRUE(same_tiles(store, *back)) << w << " x " << h << ", " << n << " tiles";
        // The exported sheet cut again, as --tile cuts it, gives the same tiles.
        const sheet::Cut cut = sheet::cut(sheet::compose(store), w, h);
        EXPECT_TRUE(cut.tiles && same_tiles(store, *cut.tiles)) << w << " x " << h << ", " << n << " tiles";
        const std::string again = dir.file("again.wst");
        ASSERT_EQ(Tileset_File::write(*back, again), written);
        EXPECT_EQ(read_bytes(path), read_bytes(again));
    }
}

TEST(TilesetFileReading, RefusedFilesGiveNoTiles) {
    Scratch_Dir dir;
    EXPECT_FALSE(Tileset_File::read(dir.file("missing.wst")));
    const std::vector<Bytes> refused{
        {'W', 'S', 'X', 0x0A, 0, 1, 1, 1, 0, 0, 0, 1, 2, 3, 4},
        {'w', 's', 't', 0x0A, 0, 1, 1, 1, 0, 0, 0, 1, 2, 3, 4},
        {'W', 'S', 'T', 0x0A, 0, 0, 1, 1, 0, 0, 0},
        {'W', 'S', 'T', 0x0A, 0, 1, 0, 1, 0, 0, 0},
        {'W', 'S', 'T', 0x0A, 0, 1, 1, 0, 0, 0, 0},
    };
    for (size_t i = 0; i < refused.size(); ++i) {
        const std::string path = dir.file("refused" + std::to_string(i) + ".wst");
        write_bytes(path, refused[i]);
        EXPECT_FALSE(Tileset_File::read(path)) << "file " << i;
    }
    // A whole file of a million 1 x 1 tiles: refused before a tile is made.
    Bytes million{'W', 'S', 'T', 0x0A, 0, 1, 1, 0x40, 0x42, 0x0F, 0};
    million.resize(11 + 1000000 * 4, 0x7F);
    write_bytes(dir.file("million.wst"), million);
    EXPECT_FALSE(Tileset_File::read(dir.file("million.wst")));
    // A pipe would never end, a folder is no file: refused, not read.
    ASSERT_EQ(mkfifo(dir.file("pipe.wst").c_str(), 0600), 0);
    EXPECT_FALSE(Tileset_File::read(dir.file("pipe.wst")));
    EXPECT_FALSE(Tileset_File::read(dir.path()));
}

TEST(TilesetFileReadingDeathTest, EveryTruncationEndsWithTheBlockError) {
    Scratch_Dir dir;
    const std::string full = dir.file("full.wst");
    std::mt19937 random(9);
    Tile_Store store(6, 6, 256);
    randomise(store, 2, random);
    ASSERT_EQ(Tileset_File::write(store, full), 299);
    const Bytes bytes = read_bytes(full);
    const std::string path = dir.file("cut.wst");
    for (size_t length = 0; length < bytes.size(); ++length) {
        write_bytes(path, Bytes(bytes.begin(), bytes.begin() + long(length)));
        EXPECT_EXIT(
            {
                send_stdout_to_stderr();
                Tileset_File::read(path);
            },
            ::testing::ExitedWithCode(1), "^Error: Unable to load block from  .*cut\\.wst!\n$")
            << "length " << length;
    }
    write_bytes(path, bytes);
    EXPECT_TRUE(Tileset_File::read(path));
}

}  // namespace
