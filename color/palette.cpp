#include "color/palette.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "app/data_file.h"
#include "app/token_stream.h"

Palette* g_palette = nullptr;

namespace {

constexpr int built_in_size = 32;

struct Built_In_Page {
    const char* name;
    Color colors[built_in_size];
};

// Both short pages are padded to 32 entries with black, and entry 2 of
// "MSX" is 1,1,1 rather than black; both are kept on purpose.
const Built_In_Page built_in_pages[] = {
    {"Default",
     {{255, 255, 255}, {0, 0, 0},       {97, 18, 124},   {132, 110, 234}, {38, 0, 220},
      {38, 105, 230},  {116, 150, 212}, {20, 210, 242},  {163, 206, 214}, {15, 198, 174},
      {48, 100, 93},   {33, 20, 157},   {18, 100, 15},   {145, 204, 43},  {75, 100, 33},
      {126, 126, 17},  {236, 236, 22},  {200, 170, 75},  {246, 141, 15},  {132, 76, 9},
      {242, 80, 59},   {234, 44, 18},   {136, 21, 6},    {142, 76, 67},   {112, 79, 58},
      {124, 98, 111},  {93, 85, 102},   {88, 100, 114},  {102, 124, 113}, {103, 112, 94},
      {230, 19, 122},  {174, 0, 153}}},
    {"EGA",
     {{0, 0, 0},       {0, 0, 170},     {0, 170, 0},     {0, 170, 170},   {170, 0, 0},
      {170, 0, 170},   {170, 85, 0},    {170, 170, 170}, {85, 85, 85},    {85, 85, 255},
      {85, 255, 85},   {85, 255, 255},  {255, 85, 85},   {255, 85, 255},  {255, 255, 85},
      {255, 255, 255}}},
    {"MSX",
     {{0, 0, 0},       {1, 1, 1},       {62, 184, 73},   {116, 208, 125}, {89, 85, 224},
      {128, 118, 241}, {185, 94, 81},   {101, 219, 239}, {219, 101, 89},  {255, 137, 125},
      {204, 195, 94},  {222, 208, 135}, {58, 162, 65},   {183, 102, 181}, {204, 204, 204},
      {255, 255, 255}}},
};

}  // namespace

Palette::Palette(std::string path) : file_path(std::move(path)) {
    Data_File file(file_path);
    if (!file.open_read()) {
        add_built_in_pages();
        return;
    }
    read(file);
    file.close();
}

Palette::~Palette() {
    if (changed) write();
}

void Palette::set_color(int page, int index, Color c) {
    pages[page]->colors[index] = c;
    changed = true;
}

void Palette::add_built_in_pages() {
    for (const Built_In_Page& built_in : built_in_pages) {
        auto page = std::make_unique<Palette_Page>(built_in.name, built_in_size);
        std::copy(std::begin(built_in.colors), std::end(built_in.colors), page->colors.begin());
        pages.push_back(std::move(page));
    }
}

// Reads the page count, then per page its colour count and the next token as
// its name. The colour tokens the writer puts between the count and the name
// are not read back; this reading of the file is kept as it is.
// A damaged file must never keep the program from starting: counts beyond
// what any palette needs leave the file unread (and untouched) and the
// built-in pages take its place, with the reason kept for the debug log.
void Palette::read(Data_File& file) {
    Token_Stream stream;
    stream.read_from(file);
    const int32_t page_total = stream.read_number();
    if (page_total > maximum_pages) {
        refuse_file("too many pages");
        return;
    }
    for (int32_t i = 0; i < page_total; ++i) {
        const int32_t count = stream.read_number();
        if (count < 0 || count > maximum_page_colors) {
            pages.clear();
            refuse_file(count < 0 ? "a negative colour count" : "too many colours on a page");
            return;
        }
        std::string page_name = stream.read_text();
        pages.push_back(std::make_unique<Palette_Page>(std::move(page_name), count));
    }
}

void Palette::refuse_file(const char* reason) {
    damage = reason;
    add_built_in_pages();
}

bool Palette::write() {
    Data_File file(file_path);
    if (!file.open_write()) return false;
    Token_Stream stream;
    stream.write_number(static_cast<int32_t>(pages.size()));
    for (const auto& page : pages) {
        stream.write_number(page->count);
        for (const Color& c : page->colors) {
            stream.write_number(c.red);
            stream.write_number(c.green);
            stream.write_number(c.blue);
            stream.write_number(c.alpha);
        }
        if (page->name.empty()) page->name = empty_name_replacement;
        stream.write_text(page->name);
    }
    const bool written = stream.write_to(file);
    file.close();
    return written;
}
