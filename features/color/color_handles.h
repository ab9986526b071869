#pragma once

#include <functional>
#include <memory>

#include "platform/texture.h"
#include "model/color/channel_handles.h"
#include "ui/button_dialog_item.h"
#include "ui/pane.h"

// Fine adjustment of one colour, channel by channel: a handle on a track for
// each of red, green, blue, alpha, saturation and lightness, dragged with the
// mouse, and "Less", "Middle" and "More" buttons beside each track.
class Color_Handles : public Pane {
public:
    static constexpr int body_height = 112;
    static constexpr int row_spacing = 17;
    static constexpr int track_width = 130;
    static constexpr int buttons_left = 135;
    static constexpr int button_spacing = 20;

    Color_Handles(int x, int y);
    ~Color_Handles() override;

    void draw() override;
    // The colour shown (the last one a tool colour was set to).
    void set_color(Color c);
    Color color() const { return model.color(); }
    const Channel_Handles& handles() const { return model; }

    // The row whose handle lies under the point, or -1.
    int handle_at(int x, int y) const;
    // A press on a small button: stepped and true. The row and kind hit are
    // reported to changed with tool colour 0, always.
    bool click_button(int x, int y);
    // Runs the relative-mouse drag of a row's handle for tool colour b.
    void drag(int row, int b);

    // A change to a tool colour: which one and the new colour.
    std::function<void(int tool, Color c)> changed;

    Rectangle track_area(int row) const;
    Rectangle handle_area(int row) const;
    Rectangle button_area(int row, int which) const;

private:
    void refresh_gradients();

    Channel_Handles model;
    std::unique_ptr<Button_Dialog_Item> handle_buttons[Channel_Handles::row_count];
    std::unique_ptr<Button_Dialog_Item> small_buttons[3];
    std::unique_ptr<Texture> gradients;
    // Each track's gradient as a band as tall as the track's inside, so that it
    // is copied without scaling, which the software renderer does slowly.
    static constexpr int band = row_spacing - 2;
    Color gradient_pixels[Channel_Handles::row_count * band * 128];
};
