#include "features/color/swatch.h"

#include <vector>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/ui_colors.h"

Swatch::Swatch(int width, int height) {
    std::vector<Color> pixels(size_t(width * height));
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            pixels[size_t(y * width + x)] = ((x / square + y / square) % 2) ? ui_colors[ui_grey_101] : ui_colors[ui_grey_169];
    board.reset(Texture::from_pixels(g_main_window->renderer(), pixels.data(), width, height));
    board->set_opaque(true);
}

Swatch::~Swatch() = default;

void Swatch::draw(const Rectangle& rect, Color c) {
    // An opaque colour hides the board entirely.
    if (c.alpha == 255) {
        g_main_window->fill_opaque(rect, c);
        return;
    }
    const float w = float(rect.width < board->width() ? rect.width : board->width());
    const float h = float(rect.height < board->height() ? rect.height : board->height());
    board->source = SDL_FRect{0, 0, w, h};
    board->destination = SDL_FRect{float(rect.x), float(rect.y), w, h};
    board->draw();
    g_main_window->fill_rect(rect, c);
}
