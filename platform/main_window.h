#pragma once

#include <SDL3/SDL.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "model/color/color.h"
#include "platform/fonts.h"
#include "model/core/rectangle.h"

class Draw_Sink;
class Frame_Cache;
class Image_Pool;
class Text_Writer;
class Texture;

// The kinds of selection edge the canvas draws; each has a horizontal and a
// vertical piece in a thin and a thick version on the sheet.
enum class Edge_Kind { selection, active_selection, paste, seam };

// The one window of the program and the owner of the renderer. Every pane,
// dialog, menu and the canvas draw through these primitives; none of them
// allocates, they all reuse the scratch rectangle.
class Main_Window {
public:
    static constexpr uint32_t default_width = 1232;
    static constexpr uint32_t default_height = 664;
    // From this many pixels an opaque fill is cheaper without blending.
    static constexpr int unblended_fill_area = 16384;

    // Fatal when the window or renderer cannot be made or "pool.bmp" cannot
    // be read from the working directory.
    Main_Window(uint32_t width, uint32_t height);
    ~Main_Window();
    Main_Window(const Main_Window&) = delete;
    Main_Window& operator=(const Main_Window&) = delete;

    void clear();
    void present();
    void set_title(const std::string& name);
    const char* renderer_name() const;

    void fill_rect(const Rectangle& rect, Color c);
    // Fills without blending whatever the size; the colour must be opaque.
    void fill_opaque(const Rectangle& rect, Color c);
    // As one unblended draw: each switch of the blend mode costs far more
    // than the fill itself. Empty rectangles are skipped.
    void fill_opaque(const Rectangle* rects, int count, Color c);
    // Limits the drawing that follows to the rectangle until end_clip.
    void clip(const Rectangle& rect);
    void end_clip();
    void line(int x1, int y1, int x2, int y2, Color c);
    void point(int x, int y, Color c);
    // length / 2 points, two steps apart; skip_first starts one step in, so
    // two calls with and without it interleave.
    void dotted_line(int x, int y, int length, int step_x, int step_y, Color c, bool skip_first);
    void frame(const Rectangle& rect, Color c);
    void bevel(const Rectangle& rect, Color c, bool sunken);
    void bevel_fill(const Rectangle& rect, Color c);

    void sprite(int id, int x, int y);
    // Draws part of a sprite (source relative to the sprite) at x, y.
    void sprite_part(int id, int x, int y, int source_x, int source_y, int w, int h);
    void sprite_strip_h(int x, int y, const SDL_FRect& sprite_rect, int length);
    void sprite_strip_v(int x, int y, const SDL_FRect& sprite_rect, int length);
    // One canvas cell's edge of size s: the thin piece up to 6, the thick above;
    // phase shifts the dash pattern by the piece's thickness.
    void edge_h(Edge_Kind kind, int x, int y, int s, bool phase);
    void edge_v(Edge_Kind kind, int x, int y, int s, bool phase);

    int text(int x, int y, const char* text);
    int text_width(const char* text) const;
    int line_height() const;
    int lines_on_screen() const;
    // A new texture of the text in one font, lines split at "\r" for the
    // multi-line form; nothing when the text has no width.
    Texture* text_texture(const char* text, int font = font_regular);
    Texture* text_texture_lines(const char* text, int font = font_regular);

    void show_cursor(bool on);
    void warp(int x, int y);
    void relative_mouse(bool on);
    SDL_Point mouse_position() const;

    uint32_t width() const { return w; }
    uint32_t height() const { return h; }
    SDL_Renderer* renderer() const { return sdl_renderer; }
    SDL_Window* window() const { return sdl_window; }
    Image_Pool& pool() const { return *image_pool; }
    Texture& pool_texture() const { return *sheet_texture; }
    Text_Writer& writer(int font = font_regular) const { return *writers[font]; }
    // Every draw goes through the sink; the frame cache keeps the editor's
    // frame between repaints.
    Draw_Sink& sink() const { return *draw_sink; }
    // Starts a new group of the kept frame, so that a change in one part of a
    // pane is not taken for a change in all of it. Parts that are drawn only
    // sometimes still mark their group every time: groups match by count.
    void next_group();
    Frame_Cache& frame_cache() const { return *cache; }

private:
    static SDL_FRect to_frect(const Rectangle& r);
    void draw_sprite_rect(const SDL_FRect& source, float x, float y, float w, float h);

    uint32_t w;
    uint32_t h;
    SDL_Renderer* sdl_renderer = nullptr;
    SDL_Window* sdl_window = nullptr;
    std::unique_ptr<Draw_Sink> draw_sink;
    std::unique_ptr<Frame_Cache> cache;
    std::unique_ptr<Texture> sheet_texture;
    SDL_FRect scratch_source{};
    std::vector<SDL_FRect> scratch_rects;
    std::unique_ptr<Image_Pool> image_pool;
    std::unique_ptr<Text_Writer> writers[font_count];
};
