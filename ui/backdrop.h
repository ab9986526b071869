#pragma once

// What a modal box repaints behind itself before each wait: the editor (or,
// before it is installed, a cleared window) and every modal layer still open
// beneath it, oldest first. Layers are kept in a fixed table so that
// painting allocates nothing.
class Backdrop {
public:
    using Painter = void (*)(void* context);
    static constexpr int max_layers = 16;

    // The editor's repaint without presenting; null paints only the clear.
    static void set_base(Painter painter, void* context);
    // A modal layer opens and closes; layers nest like the loops that push them.
    static void push(Painter painter, void* context);
    static void pop();
    static int depth() { return count; }

    // Paints the base (clears without one) and every layer; does not present.
    static void paint();

private:
    struct Layer {
        Painter painter;
        void* context;
    };
    static inline Layer base{nullptr, nullptr};
    static inline Layer layers[max_layers]{};
    static inline int count = 0;
};

// Keeps a layer pushed for the life of a modal loop.
class Backdrop_Layer {
public:
    Backdrop_Layer(Backdrop::Painter painter, void* context) { Backdrop::push(painter, context); }
    ~Backdrop_Layer() { Backdrop::pop(); }
    Backdrop_Layer(const Backdrop_Layer&) = delete;
    Backdrop_Layer& operator=(const Backdrop_Layer&) = delete;
};
