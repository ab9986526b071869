#pragma once

#include <memory>

#include "platform/texture.h"
#include "model/color/color.h"
#include "ui/backdrop.h"
#include "ui/element.h"

// An element with a titled header above a filled body. Callers give the body
// height; the 21-pixel header is added on top. The owner draws into the client
// rectangle, inset 5 pixels left, right and bottom and 26 from the top.
class Pane : public Element {
public:
    static constexpr int header_height = 21;
    static constexpr int inset_left = 5;
    static constexpr int inset_top = 26;
    static constexpr int inset_right = 5;
    static constexpr int inset_bottom = 5;

    Pane(const Rectangle& area, const char* title);

    Rectangle get_area() const override { return client; }
    void update_layout() override;
    void draw() override;

    // Replaces the header image; the old texture is freed first.
    void set_title(const char* title);
    // True inside the client rectangle only: a press on the header is outside.
    bool contains(int x, int y) const { return client.contains(x, y); }
    bool contains(float x, float y) const { return client.contains(x, y); }
    void draw_frame() const;
    void draw_frame_filled(Color c) const;

    const Rectangle& client_area() const { return client; }
    // Where the pane stands as a modal window: beside its header tab the
    // header row shows what lies beneath.
    Backdrop::Area modal_area() const { return Backdrop::Area{{area, Rectangle{}}, header_height}; }
    const Texture* header_texture() const { return header.get(); }

protected:
    std::unique_ptr<Texture> header;
    Rectangle client;
};
