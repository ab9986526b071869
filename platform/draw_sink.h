#pragma once

#include <SDL3/SDL.h>

#include <cstdint>
#include <vector>

#include "model/color/color.h"
#include "model/core/rectangle.h"

// One drawing operation as the renderer receives it, with the window pixels it
// may touch. Two operations that compare the same draw the same pixels, as
// long as a texture's generation changes whenever its pixels do.
struct Draw_Op {
    enum class Kind : uint8_t { fill, line, point, copy, clip, unclip };
    Kind kind = Kind::fill;
    bool blend = true;
    Color color;
    SDL_Texture* texture = nullptr;
    uint64_t generation = 0;
    SDL_FRect a{};  // fill, copy, clip: the rectangle; line: both ends; point: x, y
    SDL_FRect b{};  // copy: the source rectangle
    Rectangle bounds;

    bool same_as(const Draw_Op& other) const;
};

// The only path from the program's drawing code to the renderer. It either
// draws at once or, while a frame is recorded, keeps the operations so that
// only what changed since the last frame needs drawing again.
class Draw_Sink {
public:
    explicit Draw_Sink(SDL_Renderer* renderer);

    void fill(const SDL_FRect& rect, Color c, bool blend);
    // Several fills in one call, drawn as one batch.
    void fill(const SDL_FRect* rects, int count, Color c, bool blend);
    void line(float x1, float y1, float x2, float y2, Color c);
    void point(float x, float y, Color c);
    void copy(SDL_Texture* texture, uint64_t generation, bool blend, const SDL_FRect& source,
              const SDL_FRect& destination);
    // Limits what follows to the rectangle until the clip is ended.
    void clip(const Rectangle& rect);
    void end_clip();

    // Keeps the operations in ops from now on; a new group begins at every
    // mark, so that a change in one group does not look like a change in all
    // the groups after it.
    void record(std::vector<Draw_Op>& ops, std::vector<uint32_t>& group_starts);
    void mark_group();
    void stop_recording();
    bool recording() const { return recorded != nullptr; }

    // Draws the operations again, all of them limited to `within`.
    void replay(const std::vector<Draw_Op>& ops, const Rectangle& within);

    // A number no texture content has had before: textures take a new one
    // whenever their pixels change.
    static uint64_t fresh_generation();

private:
    void add(Draw_Op& op);
    void execute(const Draw_Op& op);
    void use_blend(bool blend);
    void use_color(Color c);

    SDL_Renderer* renderer;
    std::vector<Draw_Op>* recorded = nullptr;
    std::vector<uint32_t>* groups = nullptr;
    bool blending = true;
    Rectangle clip_rect;
    bool clipped = false;
};
