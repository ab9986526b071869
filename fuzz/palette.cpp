// "palette.dat" through the palette's own constructor, in the working
// directory as at start-up.
#include <unistd.h>

#include <cstdlib>
#include <string>

#include "model/color/palette.h"
#include "fuzz/fatal_throws.h"
#include "fuzz/support.h"

namespace {

// Keeps the reads below from being optimised away.
volatile uint32_t sink;

// The colour panes index every page up to its count, and size themselves by
// the bounds: all must hold.
void check(const Palette& palette) {
    if (palette.page_count() < 0 || palette.page_count() > Palette::maximum_pages) std::abort();
    // A refused file gives the built-in pages, "Default" first.
    if (!palette.damage_report().empty() && (palette.page_count() == 0 || palette.name(0) != "Default"))
        std::abort();
    for (int page = 0; page < palette.page_count(); ++page) {
        if (palette.count(page) < 0 || palette.count(page) > Palette::maximum_page_colors) std::abort();
        for (int i = 0; i < palette.count(page); ++i) sink = palette.color(page, i).word();
        sink = uint32_t(palette.name(page).size());
    }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    if (chdir(fuzz::private_dir().c_str()) != 0) std::abort();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::write_file(Palette::default_file, data, size);
    try {
        const Palette palette;
        // Loading alone never marks the palette changed, so it is not written back.
        if (palette.dirty()) std::abort();
        check(palette);
    } catch (const Fatal_Exit& e) {
        // Damaged counts fall back to the built-in pages; only a short file ends the program.
        if (e.text != "Error: Unable to load block from  palette.dat!") std::abort();
    }
    return 0;
}
