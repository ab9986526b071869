// "brushpad.dat" through the pad's own loader, as start-up reads it.
#include <unistd.h>

#include <cstdlib>
#include <string>

#include "model/brushpad/brush_pad.h"
#include "model/brushpad/brush_pad_file.h"
#include "fuzz/fatal_throws.h"
#include "fuzz/support.h"

namespace {

// The pad pane draws every brush and indexes the selected one: the bounds
// must hold whatever the file said.
void check(const Brush_Pad& pad, const Brush_Pad_File::Load_Result& result) {
    if (pad.is_changed()) std::abort();
    if (!result.damage.empty() && (!pad.empty() || pad.selected() != -1)) std::abort();
    if (pad.count() < 0 || pad.count() > Brush_Pad::capacity) std::abort();
    if (pad.selected() < -1 || pad.selected() >= pad.count()) std::abort();
    for (int i = 0; i < pad.count(); ++i) {
        const Pad_Brush& b = pad.brush(i);
        if (!Brush_Pad::usable(b.image->width(), b.image->height(), b.hot_x, b.hot_y)) std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    if (chdir(fuzz::private_dir().c_str()) != 0) std::abort();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::write_file(Brush_Pad_File::default_name, data, size);
    try {
        Brush_Pad pad;
        const Brush_Pad_File::Load_Result result = Brush_Pad_File::load(pad, Brush_Pad_File::default_name);
        check(pad, result);
        // What was accepted writes and reads back to the same pad.
        if (result.damage.empty()) {
            const std::string text = Brush_Pad_File::encode(pad);
            if (!Brush_Pad_File::save(pad, "again.dat")) std::abort();
            Brush_Pad again;
            if (!Brush_Pad_File::load(again, "again.dat").damage.empty()) std::abort();
            if (Brush_Pad_File::encode(again) != text) std::abort();
        }
    } catch (const Fatal_Exit& e) {
        // Damaged values are refused; only a short file ends the program.
        if (e.text != "Error: Unable to load block from  brushpad.dat!") std::abort();
    }
    return 0;
}
