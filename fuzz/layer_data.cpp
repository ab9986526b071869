// A map layer's cell data in each encoding map tools write: the first byte
// chooses CSV, base64, or base64 with zlib, gzip or zstd; the rest is the text.
#include <cstdlib>
#include <string>

#include "model/map/layer_data.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    const auto encoding = layer_data::Encoding(data[0] % 5);
    const std::string text(reinterpret_cast<const char*>(data + 1), size - 1);
    constexpr size_t most = 4096;
    const layer_data::Decoded d = layer_data::decode(text, encoding, most);
    // A bomb stops at the bound: one cell past it tells the layer holds more.
    if (d.cells.size() > most + 1) std::abort();
    if (!d.failure.empty() && !d.cells.empty()) std::abort();
    if (!d.failure.empty() || d.bad > 0) return 0;
    // What was read writes and reads back to the same cells.
    const std::string again = layer_data::encode(d.cells, 16, encoding);
    const layer_data::Decoded back = layer_data::decode(again, encoding, most + 1);
    if (!back.failure.empty() || back.bad != 0 || back.cells != d.cells) std::abort();
    return 0;
}
