
#include "app/tool_options.h"
#include "features/color/color_editor.h"
#include "features/color/color_tools.h"
#include "model/color/palette.h"
#include "support/editor_fixture.h"

namespace {
class ColorPanes : public Editor_Fixture {
protected:
    static Color_Tools& tools() { return g_tool_options->color_tools(); }
    static SDL_Point centre(const Rectangle& r) { return SDL_Point{r.x + r.width / 2, r.y + r.height / 2}; }
};
}  // namespace

TEST_F(ColorPanes, RightClickOnAPaletteCellSetsAndSelectsTheRightColour) {
    Palette_Area& p = tools().palette_area();
    const Rectangle c = p.client_area();
    // Cell 3 of the first row of "Default": 132, 110, 234.
    push_click(c.x + 3 * 24 + 12, c.y + 12, SDL_BUTTON_RIGHT);
    pump();
    EXPECT_EQ(tools().color(1), Color(132, 110, 234));
    EXPECT_EQ(tools().selected_index(), 1u);
    EXPECT_EQ(tools().color(0), Color(0, 0, 0));
    EXPECT_EQ(p.cell_at(c.x + 191, c.y + 95), 31);
}

TEST_F(ColorPanes, ASelectorDragKeepsThePointerInTheSquare) {
    HSV_Selector& s = tools().selector();
    const Rectangle square = s.square_area();
    Event_Script script;
    // Far below the square: the pick is clamped to the bottom row, black.
    script.then([&] { push_motion(square.x + 10, square.y + 400, SDL_BUTTON_RMASK); })
        .then([&] { push_button(square.x + 10, square.y + 127, false, SDL_BUTTON_RIGHT); });
    push_button(square.x, square.y, true, SDL_BUTTON_RIGHT);
    pump();
    EXPECT_EQ(tools().color(1), Color(0, 0, 0));
    EXPECT_EQ(tools().selected_index(), 1u);
    // Clicking between the square and the strip does nothing.
    EXPECT_FALSE(s.mouse_down(0, square.x + square.width + 3, square.y + 5));
}

TEST_F(ColorPanes, LessMiddleAndMoreAlwaysWorkOnTheLeftColour) {
    tools().set_tool_color(1, Color(10, 20, 30));
    Color_Handles& h = tools().handles_pane();
    const SDL_Point more_red = centre(h.button_area(0, 2));
    push_click(more_red.x, more_red.y, SDL_BUTTON_RIGHT);
    pump();
    EXPECT_EQ(tools().color(0), Color(11, 20, 30));
    EXPECT_EQ(tools().color(1), Color(10, 20, 30));
    const SDL_Point middle_blue = centre(h.button_area(2, 1));
    push_click(middle_blue.x, middle_blue.y);
    pump();
    EXPECT_EQ(tools().color(0), Color(11, 20, 128));
}
