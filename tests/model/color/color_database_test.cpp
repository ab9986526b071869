#include <gtest/gtest.h>

#include <cstring>

#include "model/color/color_database.h"

TEST(ColorDatabase, NamesExactColoursOnly) {
    const Color_Database db;
    EXPECT_EQ(db.size(), 24u);
    EXPECT_STREQ(db.name_of(Color(255, 192, 203)), "Pink");
    EXPECT_STREQ(db.name_of(Color(0, 0, 255)), "Dark blue");
    // Alpha is part of the colour: a translucent pink has no name.
    EXPECT_STREQ(db.name_of(Color(255, 192, 203, 254)), "---");
    EXPECT_STREQ(db.name_of(Color(1, 2, 3)), "---");
}

TEST(ColorDatabaseDeathTest, ADuplicateColourEndsTheProgram) {
    static const Named_Color twice[] = {
        {Color(1, 2, 3), "One"}, {Color(1, 2, 3), "Again"}, {Color(), "$$$"}};
    EXPECT_EXIT(Color_Database{twice}, testing::ExitedWithCode(1), "");
}
