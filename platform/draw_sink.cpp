#include "platform/draw_sink.h"

#include <cmath>

namespace {
bool same_rect(const SDL_FRect& p, const SDL_FRect& q) { return p.x == q.x && p.y == q.y && p.w == q.w && p.h == q.h; }

Rectangle covering(float x, float y, float w, float h) {
    const int left = int(std::floor(x));
    const int top = int(std::floor(y));
    return Rectangle{left, top, int(std::ceil(x + w)) - left, int(std::ceil(y + h)) - top};
}

SDL_Rect to_sdl(const Rectangle& r) { return SDL_Rect{r.x, r.y, r.width, r.height}; }
}  // namespace

bool Draw_Op::same_as(const Draw_Op& o) const {
    return kind == o.kind && blend == o.blend && color == o.color && texture == o.texture &&
           generation == o.generation && same_rect(a, o.a) && same_rect(b, o.b);
}

Draw_Sink::Draw_Sink(SDL_Renderer* renderer) : renderer(renderer) {
    SDL_SetRenderDrawBlendMode(renderer, SDL_BLENDMODE_BLEND);
}

uint64_t Draw_Sink::fresh_generation() {
    static uint64_t last = 0;
    return ++last;
}

void Draw_Sink::fill(const SDL_FRect& rect, Color c, bool blend) {
    Draw_Op op;
    op.kind = Draw_Op::Kind::fill;
    op.blend = blend;
    op.color = c;
    op.a = rect;
    op.bounds = covering(rect.x, rect.y, rect.w, rect.h);
    add(op);
}

void Draw_Sink::fill(const SDL_FRect* rects, int count, Color c, bool blend) {
    if (recorded) {
        for (int i = 0; i < count; ++i) fill(rects[i], c, blend);
        return;
    }
    use_color(c);
    use_blend(blend);
    SDL_RenderFillRects(renderer, rects, count);
}

void Draw_Sink::line(float x1, float y1, float x2, float y2, Color c) {
    Draw_Op op;
    op.kind = Draw_Op::Kind::line;
    op.color = c;
    op.a = SDL_FRect{x1, y1, x2, y2};
    // Both ends are drawn; a pixel of margin all round, as renderers that
    // draw lines as thin quads may touch the neighbouring pixel.
    op.bounds = covering(std::fmin(x1, x2) - 1, std::fmin(y1, y2) - 1, std::fabs(x2 - x1) + 3, std::fabs(y2 - y1) + 3);
    add(op);
}

void Draw_Sink::point(float x, float y, Color c) {
    Draw_Op op;
    op.kind = Draw_Op::Kind::point;
    op.color = c;
    op.a = SDL_FRect{x, y, 1, 1};
    op.bounds = covering(x - 1, y - 1, 3, 3);
    add(op);
}

void Draw_Sink::copy(SDL_Texture* texture, uint64_t generation, bool blend, const SDL_FRect& source,
                     const SDL_FRect& destination) {
    Draw_Op op;
    op.kind = Draw_Op::Kind::copy;
    op.blend = blend;
    op.texture = texture;
    op.generation = generation;
    op.a = destination;
    op.b = source;
    op.bounds = covering(destination.x, destination.y, destination.w, destination.h);
    add(op);
}

void Draw_Sink::clip(const Rectangle& rect) {
    Draw_Op op;
    op.kind = Draw_Op::Kind::clip;
    op.a = SDL_FRect{float(rect.x), float(rect.y), float(rect.width), float(rect.height)};
    op.bounds = rect;
    clipped = true;
    clip_rect = rect;
    add(op);
}

void Draw_Sink::end_clip() {
    Draw_Op op;
    op.kind = Draw_Op::Kind::unclip;
    clipped = false;
    add(op);
}

void Draw_Sink::record(std::vector<Draw_Op>& ops, std::vector<uint32_t>& group_starts) {
    ops.clear();
    group_starts.clear();
    recorded = &ops;
    groups = &group_starts;
    mark_group();
}

void Draw_Sink::mark_group() {
    if (groups) groups->push_back(uint32_t(recorded->size()));
}

void Draw_Sink::stop_recording() {
    recorded = nullptr;
    groups = nullptr;
}

void Draw_Sink::add(Draw_Op& op) {
    if (!recorded) {
        execute(op);
        return;
    }
    if (clipped && op.kind != Draw_Op::Kind::clip) op.bounds = op.bounds.intersection(clip_rect);
    recorded->push_back(op);
}

void Draw_Sink::replay(const std::vector<Draw_Op>& ops, const Rectangle& within) {
    Rectangle active = within;
    SDL_Rect sdl_clip = to_sdl(active);
    SDL_SetRenderClipRect(renderer, &sdl_clip);
    for (const Draw_Op& op : ops) {
        switch (op.kind) {
            case Draw_Op::Kind::clip:
            case Draw_Op::Kind::unclip:
                active = op.kind == Draw_Op::Kind::clip ? op.bounds.intersection(within) : within;
                sdl_clip = to_sdl(active);
                SDL_SetRenderClipRect(renderer, &sdl_clip);
                break;
            default:
                if (op.bounds.overlaps(active)) execute(op);
                break;
        }
    }
    SDL_SetRenderClipRect(renderer, nullptr);
}

void Draw_Sink::execute(const Draw_Op& op) {
    switch (op.kind) {
        case Draw_Op::Kind::fill:
            use_color(op.color);
            use_blend(op.blend);
            SDL_RenderFillRect(renderer, &op.a);
            break;
        case Draw_Op::Kind::line:
            use_color(op.color);
            use_blend(true);
            SDL_RenderLine(renderer, op.a.x, op.a.y, op.a.w, op.a.h);
            break;
        case Draw_Op::Kind::point:
            use_color(op.color);
            use_blend(true);
            SDL_RenderPoint(renderer, op.a.x, op.a.y);
            break;
        case Draw_Op::Kind::copy:
            SDL_RenderTexture(renderer, op.texture, &op.b, &op.a);
            break;
        case Draw_Op::Kind::clip: {
            const SDL_Rect r = to_sdl(op.bounds);
            SDL_SetRenderClipRect(renderer, &r);
            break;
        }
        case Draw_Op::Kind::unclip:
            SDL_SetRenderClipRect(renderer, nullptr);
            break;
    }
}

void Draw_Sink::use_blend(bool blend) {
    if (blend == blending) return;
    blending = blend;
    SDL_SetRenderDrawBlendMode(renderer, blend ? SDL_BLENDMODE_BLEND : SDL_BLENDMODE_NONE);
}

void Draw_Sink::use_color(Color c) { SDL_SetRenderDrawColor(renderer, c.red, c.green, c.blue, c.alpha); }
