#include "platform/main_window.h"

#include <algorithm>
#include <string_view>

#include "platform/draw_sink.h"
#include "model/core/fatal.h"
#include "platform/frame_cache.h"
#include "platform/sprites.h"
#include "platform/strip_layout.h"
#include "platform/texture.h"
#include "platform/ui_colors.h"
#include "platform/image_pool.h"
#include "platform/text_writer.h"

Main_Window::Main_Window(uint32_t width, uint32_t height) : w(width), h(height) {
    if (!SDL_CreateWindowAndRenderer("Mosswick", int(w), int(h), 0, &sdl_window, &sdl_renderer))
        fatal_error("Unable to create window or renderer.");
    draw_sink = std::make_unique<Draw_Sink>(sdl_renderer);
    cache = std::make_unique<Frame_Cache>(*draw_sink, sdl_renderer, int(w), int(h), ui_colors[background_color_index]);
    image_pool = std::make_unique<Image_Pool>();
    sheet_texture.reset(Texture::from_surface(sdl_renderer, image_pool->image().surface()));
    show_cursor(true);
    for (int f = 0; f < font_count; ++f)
        writers[f] = std::make_unique<Text_Writer>(f, *image_pool, *sheet_texture);
}

Main_Window::~Main_Window() {
    for (auto& writer : writers) writer.reset();
    sheet_texture.reset();
    image_pool.reset();
    cache.reset();
    draw_sink.reset();
    SDL_DestroyRenderer(sdl_renderer);
    SDL_DestroyWindow(sdl_window);
}

void Main_Window::clear() {
    const Color c = ui_colors[background_color_index];
    SDL_SetRenderDrawColor(sdl_renderer, c.red, c.green, c.blue, c.alpha);
    SDL_RenderClear(sdl_renderer);
}

void Main_Window::present() { SDL_RenderPresent(sdl_renderer); }

void Main_Window::set_title(const std::string& name) {
    const std::string title = "Mosswick 0.88 - " + name;
    SDL_SetWindowTitle(sdl_window, title.c_str());
}

const char* Main_Window::renderer_name() const { return SDL_GetRendererName(sdl_renderer); }

SDL_FRect Main_Window::to_frect(const Rectangle& r) {
    return SDL_FRect{float(r.x), float(r.y), float(r.width), float(r.height)};
}

// An opaque fill looks the same blended or not. The software renderer fills a
// large area many times faster without blending, but each switch of the blend
// mode costs about as much as blending a few thousand pixels: only large
// opaque fills switch.
void Main_Window::fill_rect(const Rectangle& rect, Color c) {
    const bool plain = c.alpha == 255 && rect.width * rect.height >= unblended_fill_area;
    draw_sink->fill(to_frect(rect), c, !plain);
}

void Main_Window::fill_opaque(const Rectangle& rect, Color c) { draw_sink->fill(to_frect(rect), c, false); }

void Main_Window::fill_opaque(const Rectangle* rects, int count, Color c) {
    scratch_rects.clear();
    for (int i = 0; i < count; ++i)
        if (rects[i].width > 0 && rects[i].height > 0) scratch_rects.push_back(to_frect(rects[i]));
    if (scratch_rects.empty()) return;
    draw_sink->fill(scratch_rects.data(), int(scratch_rects.size()), c, false);
}

void Main_Window::next_group() { draw_sink->mark_group(); }

void Main_Window::clip(const Rectangle& rect) { draw_sink->clip(rect); }

void Main_Window::end_clip() { draw_sink->end_clip(); }

void Main_Window::line(int x1, int y1, int x2, int y2, Color c) {
    draw_sink->line(float(x1), float(y1), float(x2), float(y2), c);
}

void Main_Window::point(int x, int y, Color c) { draw_sink->point(float(x), float(y), c); }

void Main_Window::dotted_line(int x, int y, int length, int step_x, int step_y, Color c, bool skip_first) {
    if (skip_first) {
        x += step_x;
        y += step_y;
        --length;
    }
    for (int i = 0; i < length / 2; ++i) point(x + 2 * i * step_x, y + 2 * i * step_y, c);
}

void Main_Window::frame(const Rectangle& r, Color c) {
    Color light = c;
    darken(light, 15);
    Color dark = c;
    darken(dark, 40);
    line(r.x, r.y, r.x + r.width - 1, r.y, light);
    line(r.x, r.y, r.x, r.y + r.height - 1, light);
    line(r.x, r.y + r.height - 1, r.x + r.width - 1, r.y + r.height - 1, dark);
    line(r.x + r.width - 1, r.y, r.x + r.width - 1, r.y + r.height - 1, dark);
}

void Main_Window::bevel(const Rectangle& r, Color c, bool sunken) {
    const double amount = 255.0 * luminance(c);
    const double corner = amount / 3;
    c.alpha = 255;
    Color light = c;
    Color dark = c;
    if (sunken) {
        darken(light, amount);
        lighten(dark, amount);
    } else {
        lighten(light, amount);
        darken(dark, amount);
    }
    Color corner_light = light;
    Color corner_dark = dark;
    if (sunken) {
        darken(corner_light, corner);
        lighten(corner_dark, corner);
    } else {
        lighten(corner_light, corner);
        darken(corner_dark, corner);
    }
    const int right = r.x + r.width - 1;
    const int bottom = r.y + r.height - 1;
    point(r.x, r.y, corner_light);
    point(right, r.y, c);
    point(r.x, bottom, c);
    point(right, bottom, corner_dark);
    if (r.width > 2) {
        line(r.x + 1, r.y, right - 1, r.y, light);
        line(r.x + 1, bottom, right - 1, bottom, dark);
    }
    if (r.height > 2) {
        line(r.x, r.y + 1, r.x, bottom - 1, light);
        line(right, r.y + 1, right, bottom - 1, dark);
    }
}

void Main_Window::bevel_fill(const Rectangle& r, Color c) {
    fill_rect(Rectangle{r.x + 1, r.y + 1, r.width - 2, r.height - 2}, c);
    bevel(r, c, false);
}

void Main_Window::draw_sprite_rect(const SDL_FRect& source, float x, float y, float dw, float dh) {
    sheet_texture->copy(source, SDL_FRect{x, y, dw, dh});
}

void Main_Window::sprite(int id, int x, int y) {
    const SDL_FRect& r = image_pool->sprite_rect(id);
    draw_sprite_rect(r, float(x), float(y), r.w, r.h);
}

void Main_Window::sprite_part(int id, int x, int y, int source_x, int source_y, int pw, int ph) {
    const SDL_FRect& r = image_pool->sprite_rect(id);
    scratch_source = {r.x + float(source_x), r.y + float(source_y), float(pw), float(ph)};
    draw_sprite_rect(scratch_source, float(x), float(y), float(pw), float(ph));
}

void Main_Window::sprite_strip_h(int x, int y, const SDL_FRect& r, int length) {
    for_each_strip_piece(length, int(r.w), [&](int offset, int source, int drawn) {
        scratch_source = {r.x, r.y, float(source), r.h};
        draw_sprite_rect(scratch_source, float(x + offset), float(y), float(drawn), r.h);
    });
}

void Main_Window::sprite_strip_v(int x, int y, const SDL_FRect& r, int length) {
    for_each_strip_piece(length, int(r.h), [&](int offset, int source, int drawn) {
        scratch_source = {r.x, r.y, r.w, float(source)};
        draw_sprite_rect(scratch_source, float(x), float(y + offset), r.w, float(drawn));
    });
}

namespace {
// Each kind has four pieces: thin horizontal, thin vertical, thick horizontal, thick vertical.
int edge_sprite(Edge_Kind kind, bool vertical, int s) {
    return sprite_horiz_selector_one + 4 * int(kind) + (s > 6 ? 2 : 0) + (vertical ? 1 : 0);
}
}  // namespace

void Main_Window::edge_h(Edge_Kind kind, int x, int y, int s, bool phase) {
    const SDL_FRect& r = image_pool->sprite_rect(edge_sprite(kind, false, s));
    scratch_source = {r.x + (phase ? r.h : 0.0f), r.y, float(s), r.h};
    draw_sprite_rect(scratch_source, float(x), float(y), float(s), r.h);
}

void Main_Window::edge_v(Edge_Kind kind, int x, int y, int s, bool phase) {
    const SDL_FRect& r = image_pool->sprite_rect(edge_sprite(kind, true, s));
    scratch_source = {r.x, r.y + (phase ? r.w : 0.0f), r.w, float(s)};
    draw_sprite_rect(scratch_source, float(x), float(y), r.w, float(s));
}

int Main_Window::text(int x, int y, const char* text) { return writers[font_regular]->write_at(x, y, text); }

int Main_Window::text_width(const char* text) const { return writers[font_regular]->measure(text); }

int Main_Window::line_height() const { return writers[font_regular]->line_height(); }

int Main_Window::lines_on_screen() const { return int(h) / line_height(); }

Texture* Main_Window::text_texture(const char* text, int font) {
    // Nothing wider than this can show in the window, and a texture as wide
    // as a very long text would be refused by the renderer.
    const int width = std::min(image_pool->text_width(font, text), max_text_width);
    if (width <= 0) return nullptr;
    SDL_Surface* surface = SDL_CreateSurface(width, font_table[font].glyph_height, SDL_PIXELFORMAT_ARGB8888);
    if (!surface) return nullptr;
    image_pool->blit_text(font, text, 0, 0, surface);
    Texture* texture = Texture::from_surface(sdl_renderer, surface);
    SDL_DestroySurface(surface);
    return texture;
}

Texture* Main_Window::text_texture_lines(const char* text, int font) {
    const int width = std::min(writers[font]->measure(text), max_text_width);
    if (width <= 0) return nullptr;
    const std::string_view all(text);
    const int lines = 1 + int(std::count(all.begin(), all.end(), '\r'));
    const int line_h = font_table[font].glyph_height;
    SDL_Surface* surface = SDL_CreateSurface(width, lines * line_h, SDL_PIXELFORMAT_ARGB8888);
    if (!surface) return nullptr;
    size_t start = 0;
    for (int row = 0; row < lines; ++row) {
        const size_t end = std::min(all.find('\r', start), all.size());
        const std::string line(all.substr(start, end - start));
        image_pool->blit_text(font, line.c_str(), 0, row * line_h, surface);
        start = end + 1;
    }
    Texture* texture = Texture::from_surface(sdl_renderer, surface);
    SDL_DestroySurface(surface);
    return texture;
}

void Main_Window::show_cursor(bool on) {
    if (on)
        SDL_ShowCursor();
    else
        SDL_HideCursor();
}

void Main_Window::warp(int x, int y) { SDL_WarpMouseInWindow(sdl_window, float(x), float(y)); }

void Main_Window::relative_mouse(bool on) { SDL_SetWindowRelativeMouseMode(sdl_window, on); }

SDL_Point Main_Window::mouse_position() const {
    float x = 0;
    float y = 0;
    SDL_GetMouseState(&x, &y);
    return SDL_Point{int(x), int(y)};
}
