// Panes that keep a picture between repaints must show every change on the
// very next repaint.

#include "app/tool_options.h"
#include "platform/ui_colors.h"
#include "features/color/brush_selector.h"
#include "features/color/color_tools.h"
#include "model/color/palette.h"
#include "features/color/palette_area.h"
#include "support/editor_fixture.h"

namespace {
class RepaintCache : public Editor_Fixture {
protected:
    static Palette_Area& palette() { return g_tool_options->color_tools().palette_area(); }
    static SDL_Point cell_centre(int index) {
        const Rectangle c = palette().client_area();
        const int s = palette().cell_size();
        return SDL_Point{c.x + (index % 8) * s + s / 2, c.y + (index / 8) * s + s / 2};
    }
};
}  // namespace

TEST_F(RepaintCache, APaletteColourChangeShowsOnTheNextRepaint) {
    const SDL_Point p = cell_centre(5);
    g_editor->repaint(false);
    EXPECT_EQ(read_pixel(p.x, p.y), g_palette->color(0, 5));
    g_palette->set_color(0, 5, Color(12, 200, 34));
    g_editor->repaint(false);
    EXPECT_EQ(read_pixel(p.x, p.y), Color(12, 200, 34));
    EXPECT_EQ(read_pixel(cell_centre(6).x, cell_centre(6).y), g_palette->color(0, 6));
}
