#include "platform/data_directory.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/headless.h"

namespace fs = std::filesystem;

TEST(DataDirectory, EntersOnceLeavesByParentAndKeepsTheTargetOnFailure) {
    const fs::path before = fs::current_path();
    Temp_Dir dir;
    fs::create_directory(dir.path / "data");
    fs::current_path(dir.path);

    Data_Directory::leave();  // at the start directory: nothing happens
    EXPECT_EQ(fs::current_path(), fs::canonical(dir.path));

    EXPECT_EQ(Data_Directory::enter(Data_Directory::data), 1);
    EXPECT_EQ(fs::current_path(), fs::canonical(dir.path / "data"));
    // Entering again is refused without moving, which start-up treats as failure.
    EXPECT_EQ(Data_Directory::enter(Data_Directory::data), 0);
    EXPECT_EQ(fs::current_path(), fs::canonical(dir.path / "data"));

    Data_Directory::leave();
    EXPECT_EQ(Data_Directory::current(), Data_Directory::start);
    EXPECT_EQ(fs::current_path(), fs::canonical(dir.path));

    // No data directory here: the change fails, but the index is the target.
    fs::remove(dir.path / "data");
    EXPECT_EQ(Data_Directory::enter(Data_Directory::data), 0);
    EXPECT_EQ(Data_Directory::current(), Data_Directory::data);
    EXPECT_EQ(fs::current_path(), fs::canonical(dir.path));
    fs::current_path(before);
}
