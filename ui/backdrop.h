#pragma once

#include "model/core/rectangle.h"

// What a modal box repaints behind itself before each wait: the editor (or,
// before it is installed, a cleared window) and every modal layer still open
// beneath it, oldest first. Layers are kept in a fixed table so that
// painting allocates nothing.
class Backdrop {
public:
    using Painter = void (*)(void* context);
    static constexpr int max_layers = 16;

    // Where a modal window stands: the rectangles it covers whole (a menu
    // needs two, its bar and its drop-down; an unused one is empty), and how
    // many rows at the top of the first it may leave to what lies beneath,
    // beside a pane's header tab.
    struct Area {
        Rectangle parts[2];
        int open_rows = 0;
    };
    using Area_Of = Area (*)(const void* context);

    // The editor's repaint without presenting; null paints only the clear.
    static void set_base(Painter painter, void* context);
    // A modal layer opens and closes; layers nest like the loops that push them.
    static void push(Painter painter, void* context, Area_Of area = nullptr);
    static void pop();
    static int depth() { return count; }
    // Where the innermost layer stands; empty without layers or area.
    static Area top_area();

    // Paints the base (clears without one) and every layer; does not present.
    static void paint();
    // Paints only the layers, over whatever the window holds.
    static void paint_layers();

private:
    struct Layer {
        Painter painter;
        void* context;
        Area_Of area;
    };
    static inline Layer base{nullptr, nullptr, nullptr};
    static inline Layer layers[max_layers]{};
    static inline int count = 0;
};

// Keeps a layer pushed for the life of a modal loop.
class Backdrop_Layer {
public:
    Backdrop_Layer(Backdrop::Painter painter, void* context, Backdrop::Area_Of area = nullptr) {
        Backdrop::push(painter, context, area);
    }
    ~Backdrop_Layer() { Backdrop::pop(); }
    Backdrop_Layer(const Backdrop_Layer&) = delete;
    Backdrop_Layer& operator=(const Backdrop_Layer&) = delete;
};
