#pragma once

#include <SDL3/SDL.h>

#include <atomic>
#include <cstdint>
#include <vector>

#include "platform/draw_sink.h"
#include "model/color/color.h"
#include "model/core/rectangle.h"

// Keeps the last frame in a texture the size of the window and draws again
// only the groups of operations that changed since then: a repaint after a
// pointer move costs the few rectangles it touched plus one copy to the window.
// Without render targets every frame is drawn in full.
class Frame_Cache {
public:
    static constexpr int max_damage = 32;

    Frame_Cache(Draw_Sink& sink, SDL_Renderer* renderer, int width, int height, Color background);
    ~Frame_Cache();
    Frame_Cache(const Frame_Cache&) = delete;
    Frame_Cache& operator=(const Frame_Cache&) = delete;

    // Everything drawn through the sink until finish belongs to the frame.
    void begin();
    void next_group() { sink.mark_group(); }
    // Brings the kept frame up to date and copies it to the window.
    void finish();
    // The next frame is drawn in full.
    void invalidate() { valid = false; }

    // What the last finish drew again, for tests and measurements.
    int damage_count() const { return damaged; }
    const Rectangle& damage(int i) const { return damage_rects[i]; }

private:
    struct Frame {
        std::vector<Draw_Op> ops;
        std::vector<uint32_t> group_starts;
    };
    static bool watch(void* cache, SDL_Event* event);
    void find_damage(const Frame& before, const Frame& now);
    void add_damage(Rectangle r);

    Draw_Sink& sink;
    SDL_Renderer* renderer;
    SDL_Texture* target = nullptr;
    Rectangle whole;
    Color background;
    Frame frames[2];
    int current = 0;
    bool valid = false;
    bool cleared = false;
    // Set when the renderer reports that target textures lost their pixels.
    std::atomic<bool> lost{false};
    Rectangle damage_rects[max_damage];
    int damaged = 0;
};
