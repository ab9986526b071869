#include "ui/backdrop.h"

#include "platform/globals.h"
#include "platform/main_window.h"

void Backdrop::set_base(Painter painter, void* context) { base = Layer{painter, context, nullptr}; }

void Backdrop::push(Painter painter, void* context, Area_Of area) {
    // Deeper nesting than the table holds is not drawn, but still balanced.
    if (count < max_layers) layers[count] = Layer{painter, context, area};
    ++count;
}

void Backdrop::pop() {
    if (count > 0) --count;
}

Backdrop::Area Backdrop::top_area() {
    if (count == 0 || count > max_layers) return Area{};
    const Layer& top = layers[count - 1];
    return top.area ? top.area(top.context) : Area{};
}

void Backdrop::paint() {
    // The editor's frame covers the whole window; only without it is there
    // anything to clear.
    if (!base.painter) g_main_window->clear();
    if (base.painter) base.painter(base.context);
    paint_layers();
}

void Backdrop::paint_layers() {
    const int drawn = count < max_layers ? count : max_layers;
    for (int i = 0; i < drawn; ++i) layers[i].painter(layers[i].context);
}
