#pragma once

#include "model/core/rectangle.h"

// A screen region with the small virtual interface every visible part of the
// window shares: where its owner draws, how it lays itself out, how it draws
// and moves. Subclasses keep the order of these operations.
class Element {
public:
    explicit Element(const Rectangle& area) : area(area) {}
    virtual ~Element() = default;
    Element(const Element&) = delete;
    Element& operator=(const Element&) = delete;

    // The rectangle the owner draws into: the outer one here.
    virtual Rectangle get_area() const { return area; }
    // Recomputes derived geometry after the outer rectangle changed.
    virtual void update_layout() {}
    virtual void draw() {}
    virtual void move_to(int x, int y);

    // Geometry changes only through these, so derived geometry stays in step.
    void set_position(int x, int y);
    void set_size(int w, int h);
    const Rectangle& outer_area() const { return area; }

protected:
    Rectangle area;
};
