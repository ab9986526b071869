#include "model/brushpad/brush_pad_file.h"

#include <unistd.h>

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "model/core/data_file.h"
#include "model/core/token_stream.h"
#include "model/core/safe_file.h"
#include "model/brushpad/brush_pad.h"

namespace fs = std::filesystem;

namespace {
// Every token must be a whole decimal number inside the 32-bit range; the
// stream's own number reading would turn rubbish into 0 silently.
class Strict_Reader {
public:
    explicit Strict_Reader(Token_Stream& stream) : stream(stream) {}

    bool next(int32_t& value) {
        if (stream.at_end()) {
            fault = "the file ends early";
            return false;
        }
        const std::string_view token = stream.read_token();
        const char* first = token.data();
        const char* last = first + token.size();
        const auto [end, error] = std::from_chars(first, last, value);
        if (error != std::errc() || end != last || token.empty()) {
            fault = "a value that is not a 32-bit number";
            return false;
        }
        return true;
    }

    std::string fault;

private:
    Token_Stream& stream;
};

std::string read_pad(Brush_Pad& pad, Token_Stream& stream) {
    Strict_Reader in(stream);
    int32_t version = 0, count = 0, selected = 0;
    if (!in.next(version)) return in.fault;
    if (version != Brush_Pad_File::version) return "an unknown version " + std::to_string(version);
    if (!in.next(count) || !in.next(selected)) return in.fault;
    if (count < 0) return "a negative brush count";
    if (count > Brush_Pad::capacity) return "more brushes than the pad holds";
    if (selected < -1 || selected >= count) return "a selected brush that is not on the pad";
    for (int32_t i = 0; i < count; ++i) {
        int32_t width = 0, height = 0, hot_x = 0, hot_y = 0;
        if (!in.next(width) || !in.next(height) || !in.next(hot_x) || !in.next(hot_y)) return in.fault;
        if (width < 1 || height < 1 || width > Brush_Pad::max_side || height > Brush_Pad::max_side)
            return "a brush size outside 1 to 64";
        if (!Brush_Pad::usable(width, height, hot_x, hot_y)) return "a hotspot outside its brush";
        bool ok = true;
        auto image = std::make_unique<Tile>(width, height, [&](Color* pixels) {
            for (int32_t p = 0; p < width * height; ++p) {
                int32_t word = 0;
                if (ok && !in.next(word)) ok = false;
                pixels[p] = Color::from_word(uint32_t(word));
            }
        });
        if (!ok) return in.fault;
        pad.append_loaded(Pad_Brush{std::move(image), hot_x, hot_y});
    }
    pad.select_loaded(selected);
    return {};
}
}  // namespace

Brush_Pad_File::Load_Result Brush_Pad_File::load(Brush_Pad& pad, const std::string& path) {
    Load_Result result;
    pad.clear();
    pad.mark_saved();
    Data_File file(path);
    if (!file.open_read()) return result;
    result.found = true;
    Token_Stream stream;
    stream.read_from(file);
    file.close();
    result.damage = read_pad(pad, stream);
    if (!result.damage.empty()) pad.clear();
    return result;
}

std::string Brush_Pad_File::encode(const Brush_Pad& pad) {
    Token_Stream stream;
    stream.write_number(version);
    stream.write_number(pad.count());
    stream.write_number(pad.selected());
    for (int i = 0; i < pad.count(); ++i) {
        const Pad_Brush& b = pad.brush(i);
        stream.write_number(b.image->width());
        stream.write_number(b.image->height());
        stream.write_number(b.hot_x);
        stream.write_number(b.hot_y);
        const Color* pixels = b.image->pixels();
        for (int p = 0; p < b.image->pixel_count(); ++p) stream.write_number(int32_t(pixels[p].word()));
    }
    return stream.text();
}

bool Brush_Pad_File::save(Brush_Pad& pad, const std::string& path) {
    Token_Stream stream(encode(pad));
    if (!safe_file::written(path, [&](std::FILE* file) { return stream.write_to(file); }, safe_file::Links::follow))
        return false;
    pad.mark_saved();
    return true;
}
