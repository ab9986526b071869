#include "platform/frame_cache.h"

#include <cstdint>

namespace {
Rectangle bounds_of(const std::vector<Draw_Op>& ops, uint32_t first, uint32_t last) {
    Rectangle r;
    for (uint32_t i = first; i < last; ++i) r = r.united(ops[i].bounds);
    return r;
}

uint32_t group_end(const std::vector<uint32_t>& starts, size_t group, size_t op_count) {
    return group + 1 < starts.size() ? starts[group + 1] : uint32_t(op_count);
}
}  // namespace

Frame_Cache::Frame_Cache(Draw_Sink& sink, SDL_Renderer* renderer, int width, int height, Color background)
    : sink(sink), renderer(renderer), whole{0, 0, width, height}, background(background) {
    target = SDL_CreateTexture(renderer, SDL_PIXELFORMAT_XRGB8888, SDL_TEXTUREACCESS_TARGET, width, height);
    if (target) {
        SDL_SetTextureBlendMode(target, SDL_BLENDMODE_NONE);
        SDL_SetTextureScaleMode(target, SDL_SCALEMODE_NEAREST);
    }
    // Watched rather than handled in a loop: any loop, modal ones included,
    // may be the one that receives the event.
    SDL_AddEventWatch(watch, this);
}

Frame_Cache::~Frame_Cache() {
    SDL_RemoveEventWatch(watch, this);
    if (target) SDL_DestroyTexture(target);
}

// Some renderers lose the contents of target textures (a device reset, a
// display change): the next frame is drawn in full over a cleared texture.
bool Frame_Cache::watch(void* cache, SDL_Event* event) {
    if (event->type == SDL_EVENT_RENDER_TARGETS_RESET || event->type == SDL_EVENT_RENDER_DEVICE_RESET)
        static_cast<Frame_Cache*>(cache)->lost = true;
    return true;
}

void Frame_Cache::begin() {
    Frame& frame = frames[current];
    sink.record(frame.ops, frame.group_starts);
}

void Frame_Cache::finish() {
    sink.stop_recording();
    const Frame& now = frames[current];
    const Frame& before = frames[1 - current];
    damaged = 0;
    if (lost.exchange(false)) {
        valid = false;
        cleared = false;
    }
    if (!valid || !target)
        add_damage(whole);
    else
        find_damage(before, now);
    if (target) SDL_SetRenderTarget(renderer, target);
    // The kept frame starts as the background; after that every pixel keeps
    // what was last drawn there, as the window itself would.
    if (!cleared) {
        cleared = true;
        SDL_SetRenderDrawColor(renderer, background.red, background.green, background.blue, 255);
        SDL_RenderClear(renderer);
    }
    for (int i = 0; i < damaged; ++i) sink.replay(now.ops, damage_rects[i]);
    if (target) {
        SDL_SetRenderTarget(renderer, nullptr);
        const SDL_FRect all{0, 0, float(whole.width), float(whole.height)};
        SDL_RenderTexture(renderer, target, &all, &all);
    }
    valid = true;
    current = 1 - current;
}

// Groups are matched by their place in the frame. A group with as many
// operations as before is compared one operation with the next: only the
// pixels of those that differ, where they were and where they are, can have
// changed, since every other pixel meets the same operations in the same
// order. A group that grew or shrank is drawn again where the operations
// between its unchanged beginning and unchanged end were and are.
void Frame_Cache::find_damage(const Frame& before, const Frame& now) {
    if (before.group_starts.size() != now.group_starts.size()) {
        add_damage(whole);
        return;
    }
    for (size_t g = 0; g < now.group_starts.size(); ++g) {
        const uint32_t b0 = before.group_starts[g];
        const uint32_t b1 = group_end(before.group_starts, g, before.ops.size());
        const uint32_t n0 = now.group_starts[g];
        const uint32_t n1 = group_end(now.group_starts, g, now.ops.size());
        if (b1 - b0 != n1 - n0) {
            // What both begin and end with is the same; only the middle of
            // each, where they part, can draw anything differently.
            uint32_t head = 0;
            while (b0 + head < b1 && n0 + head < n1 && before.ops[b0 + head].same_as(now.ops[n0 + head])) ++head;
            uint32_t tail = 0;
            while (b1 - tail > b0 + head && n1 - tail > n0 + head &&
                   before.ops[b1 - tail - 1].same_as(now.ops[n1 - tail - 1]))
                ++tail;
            add_damage(bounds_of(before.ops, b0 + head, b1 - tail));
            add_damage(bounds_of(now.ops, n0 + head, n1 - tail));
            continue;
        }
        for (uint32_t i = 0; i < n1 - n0; ++i) {
            const Draw_Op& was = before.ops[b0 + i];
            const Draw_Op& is = now.ops[n0 + i];
            if (was.same_as(is)) continue;
            // A clip's bounds are its rectangle, so a moved clip covers all it let through.
            add_damage(was.bounds);
            add_damage(is.bounds);
        }
    }
}

namespace {
int64_t area(const Rectangle& r) { return int64_t(r.width) * r.height; }

bool touches(const Rectangle& p, const Rectangle& q) {
    return p.x <= q.x + q.width && q.x <= p.x + p.width && p.y <= q.y + q.height && q.y <= p.y + p.height;
}
}  // namespace

// Touching rectangles merge, so no pixel is drawn twice and a run of changed
// letters is one rectangle; when the table is full the new one joins the
// rectangle it grows least.
void Frame_Cache::add_damage(Rectangle r) {
    r = r.intersection(whole);
    if (r.empty()) return;
    for (int i = 0; i < damaged;) {
        if (touches(damage_rects[i], r)) {
            r = r.united(damage_rects[i]);
            damage_rects[i] = damage_rects[--damaged];
            i = 0;
        } else {
            ++i;
        }
    }
    if (damaged == max_damage) {
        int best = 0;
        int64_t best_growth = INT64_MAX;
        for (int i = 0; i < damaged; ++i) {
            const int64_t growth = area(r.united(damage_rects[i])) - area(damage_rects[i]);
            if (growth < best_growth) {
                best_growth = growth;
                best = i;
            }
        }
        r = r.united(damage_rects[best]);
        damage_rects[best] = damage_rects[--damaged];
        add_damage(r);
        return;
    }
    damage_rects[damaged++] = r;
}
