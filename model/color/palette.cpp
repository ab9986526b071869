#include "model/color/palette.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "model/core/data_file.h"
#include "model/core/token_stream.h"
#include "model/core/safe_file.h"

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
    file.set_settings_file(true);
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

bool Palette::save_if_changed() {
    if (!changed) return true;
    // Tried once: the destructor does not try again.
    changed = false;
    return write();
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

namespace {
// A number of up to three digits, at most limit, at the start of a token;
// its length, or 0 when the token does not start with one.
size_t leading_number(std::string_view token, int limit, int& value) {
    value = 0;
    size_t n = 0;
    while (n < token.size() && n < 3 && token[n] >= '0' && token[n] <= '9') {
        const int next = value * 10 + (token[n] - '0');
        if (next > limit) break;
        value = next;
        ++n;
    }
    return n;
}
}  // namespace

// The file as the writer lays it out: the page count, then per page its
// colour count, four channel numbers per colour and the name. A file read
// that way must end exactly at its end; otherwise it is read in the older
// way, which takes the token after each colour count as the page's name and
// leaves its colours black (files that carry names only keep loading).
// A damaged file must never keep the program from starting: counts beyond
// what any palette needs leave the file unread (and untouched) and the
// built-in pages take its place, with the reason kept for the debug log.
void Palette::read(Data_File& file) {
    Token_Stream stream;
    stream.read_from(file);
    if (read_as_written(stream)) return;
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

// A page's name follows its last channel (or its colour count, for a page
// of no colours): after a "," in files written now, glued to that number in
// files written before (",255Default,"), where the leading digits are the
// number and the rest is the name.
bool Palette::read_as_written(Token_Stream stream) {
    int page_total = 0;
    const std::string_view total_token = stream.read_token();
    if (total_token.empty() || leading_number(total_token, maximum_pages, page_total) != total_token.size() ||
        page_total <= 0)
        return false;
    std::vector<std::unique_ptr<Palette_Page>> read;
    for (int i = 0; i < page_total; ++i) {
        std::string_view token = stream.read_token();
        int count = 0;
        size_t digits = 0;
        // Up to 256 colours: the count may have three digits.
        while (digits < token.size() && digits < 3 && token[digits] >= '0' && token[digits] <= '9')
            count = count * 10 + (token[digits++] - '0');
        if (digits == 0 || count > maximum_page_colors) return false;
        auto page = std::make_unique<Palette_Page>(std::string(), count);
        std::string_view glued = token.substr(digits);
        for (Color& c : page->colors) {
            if (!glued.empty()) return false;
            uint8_t channels[4];
            for (uint8_t& channel : channels) {
                token = stream.read_token();
                int value = 0;
                const size_t n = leading_number(token, 255, value);
                if (n == 0 || (n < token.size() && &channel != &channels[3])) return false;
                channel = uint8_t(value);
                glued = token.substr(n);
            }
            c = Color(channels[0], channels[1], channels[2], channels[3]);
        }
        page->name = glued.empty() ? stream.read_text() : std::string(glued);
        read.push_back(std::move(page));
        // A name ends with "," and the next number starts with one; the last
        // name is followed by the closing ":" alone.
        if (!stream.read_token().empty()) return false;
    }
    if (!stream.at_end()) return false;
    pages = std::move(read);
    return true;
}

void Palette::refuse_file(const char* reason) {
    damage = reason;
    add_built_in_pages();
}

bool Palette::write() {
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
        // A "," before the name, so that it reads back apart from the last number.
        stream.write_text("");
        stream.write_text(page->name);
    }
    return safe_file::written(file_path, [&](std::FILE* file) { return stream.write_to(file); },
                              safe_file::Links::follow);
}
