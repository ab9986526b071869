#pragma once

#include <memory>
#include <string>
#include <vector>

#include "model/color/color.h"

class Data_File;
class Token_Stream;

// One named set of colours; a new page's colours are opaque black.
struct Palette_Page {
    Palette_Page(std::string page_name, int32_t colour_count)
        : name(std::move(page_name)), count(colour_count), colors(static_cast<size_t>(colour_count)) {}

    std::string name;
    int32_t count;
    std::vector<Color> colors;
};

// The palette: named pages of colours kept in "palette.dat" of the data
// directory. Built-in pages are used when the file cannot be opened; the file
// is written back at destruction only when a colour was changed.
class Palette {
public:
    static constexpr const char* default_file = "palette.dat";
    static constexpr const char* empty_name_replacement = "Rolololo";
    // Far beyond any palette a user keeps, small enough for every pane that
    // shows pages and colours.
    static constexpr int32_t maximum_pages = 64;
    static constexpr int32_t maximum_page_colors = 256;

    explicit Palette(std::string path = default_file);
    ~Palette();
    Palette(const Palette&) = delete;
    Palette& operator=(const Palette&) = delete;

    // Page and colour numbers are not range-tested: callers keep them in range.
    Color color(int page, int index) const { return pages[page]->colors[index]; }
    int count(int page) const { return pages[page]->count; }
    const std::string& name(int page) const { return pages[page]->name; }
    void set_color(int page, int index, Color c);
    int page_count() const { return static_cast<int>(pages.size()); }
    bool dirty() const { return changed; }
    // Writes the file now when a colour changed; false when that failed.
    bool save_if_changed();
    // Why the file was not used (it is left as it is), or empty; start-up
    // logs it as a warning.
    const std::string& damage_report() const { return damage; }

    // Writes every page to the file; false when it cannot be opened. An empty
    // page name is replaced by "Rolololo", in the page too.
    bool write();
    // The pages as the writer lays them out; false, reading nothing, when
    // the text is not laid out that way.
    bool read_as_written(Token_Stream stream);

private:
    void add_built_in_pages();
    void read(Data_File& file);
    void refuse_file(const char* reason);

    std::string file_path;
    bool changed = false;
    std::string damage;
    std::vector<std::unique_ptr<Palette_Page>> pages;
};

// The program's palette, made at start-up and destroyed at shut-down, both
// inside the data directory.
extern Palette* g_palette;
