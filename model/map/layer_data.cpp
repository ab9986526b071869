#include "model/map/layer_data.h"

#include <zlib.h>
#include <zstd.h>

#include <algorithm>
#include <cstring>

namespace layer_data {

namespace {
const char* const alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

bool is_space(char c) { return c == ' ' || c == '\n' || c == '\r' || c == '\t'; }

std::string base64(const std::vector<uint8_t>& bytes) {
    std::string out;
    out.reserve((bytes.size() + 2) / 3 * 4);
    for (size_t i = 0; i < bytes.size(); i += 3) {
        const uint32_t n = uint32_t(bytes[i]) << 16 | (i + 1 < bytes.size() ? uint32_t(bytes[i + 1]) << 8 : 0) |
                           (i + 2 < bytes.size() ? bytes[i + 2] : 0);
        out += alphabet[n >> 18 & 63];
        out += alphabet[n >> 12 & 63];
        out += i + 1 < bytes.size() ? alphabet[n >> 6 & 63] : '=';
        out += i + 2 < bytes.size() ? alphabet[n & 63] : '=';
    }
    return out;
}

// False for a character outside the alphabet or text after the padding.
bool unbase64(const std::string& text, std::vector<uint8_t>& bytes) {
    uint32_t bits = 0;
    int held = 0;
    int padding = 0;
    for (char c : text) {
        if (is_space(c)) continue;
        if (c == '=') {
            ++padding;
            continue;
        }
        const char* at = std::strchr(alphabet, c);
        if (c == '\0' || !at || padding > 0) return false;
        bits = bits << 6 | uint32_t(at - alphabet);
        held += 6;
        if (held >= 8) {
            held -= 8;
            bytes.push_back(uint8_t(bits >> held));
        }
    }
    return padding <= 2;
}

// At most limit bytes come out: a small layer cannot unpack into gigabytes.
std::string inflate_bytes(const std::vector<uint8_t>& in, bool gzip, size_t limit, std::vector<uint8_t>& out) {
    z_stream s{};
    if (inflateInit2(&s, gzip ? 16 + MAX_WBITS : MAX_WBITS) != Z_OK) return "out of memory";
    s.next_in = const_cast<Bytef*>(in.data());
    s.avail_in = uInt(in.size());
    int status = Z_OK;
    while (status == Z_OK && out.size() < limit) {
        const size_t before = out.size();
        out.resize(std::min(limit, before + 65536));
        s.next_out = out.data() + before;
        s.avail_out = uInt(out.size() - before);
        status = inflate(&s, Z_NO_FLUSH);
        out.resize(out.size() - s.avail_out);
        if (status == Z_BUF_ERROR && s.avail_in == 0) break;
    }
    inflateEnd(&s);
    if (status == Z_STREAM_END || out.size() >= limit) return {};
    return status == Z_DATA_ERROR ? "its compressed data is damaged" : "its compressed data ends early";
}

std::string unzstd(const std::vector<uint8_t>& in, size_t limit, std::vector<uint8_t>& out) {
    ZSTD_DStream* stream = ZSTD_createDStream();
    if (!stream) return "out of memory";
    ZSTD_inBuffer input{in.data(), in.size(), 0};
    size_t status = 1;
    while (input.pos < input.size && out.size() < limit) {
        const size_t before = out.size();
        out.resize(std::min(limit, before + 65536));
        ZSTD_outBuffer output{out.data() + before, out.size() - before, 0};
        status = ZSTD_decompressStream(stream, &output, &input);
        out.resize(before + output.pos);
        if (ZSTD_isError(status)) break;
    }
    ZSTD_freeDStream(stream);
    if (ZSTD_isError(status)) return "its compressed data is damaged";
    return status == 0 || out.size() >= limit ? std::string() : "its compressed data ends early";
}

void csv_cells(const std::string& text, size_t max_cells, Decoded& d) {
    const char* at = text.c_str();
    while (true) {
        while (is_space(*at)) ++at;
        if (*at == '\0' || d.cells.size() > max_cells) return;
        uint64_t number = 0;
        int digits = 0;
        bool bad = false;
        while (*at != ',' && *at != '\0') {
            if (is_space(*at)) {
                const char* next = at;
                while (is_space(*next)) ++next;
                at = next;
                // A row's last number needs no comma before the line break:
                // a number never runs on across white space.
                if (digits > 0 && *next >= '0' && *next <= '9') break;
                continue;
            }
            const char c = *at++;
            if (c < '0' || c > '9' || digits >= 10) {
                bad = true;
                continue;
            }
            number = number * 10 + uint64_t(c - '0');
            ++digits;
        }
        if (*at == ',') ++at;
        if (digits == 0 || number > 0xFFFFFFFFull) bad = true;
        if (bad) ++d.bad;
        d.cells.push_back(bad ? 0 : uint32_t(number));
    }
}

std::vector<uint8_t> little_endian(const std::vector<uint32_t>& cells) {
    std::vector<uint8_t> bytes(cells.size() * 4);
    for (size_t i = 0; i < cells.size(); ++i)
        for (int k = 0; k < 4; ++k) bytes[i * 4 + size_t(k)] = uint8_t(cells[i] >> (8 * k));
    return bytes;
}

std::vector<uint8_t> deflate_bytes(const std::vector<uint8_t>& in, bool gzip) {
    z_stream s{};
    if (deflateInit2(&s, Z_DEFAULT_COMPRESSION, Z_DEFLATED, gzip ? 16 + MAX_WBITS : MAX_WBITS, 8,
                     Z_DEFAULT_STRATEGY) != Z_OK)
        return {};
    std::vector<uint8_t> out(deflateBound(&s, uLong(in.size())) + 32);
    s.next_in = const_cast<Bytef*>(in.data());
    s.avail_in = uInt(in.size());
    s.next_out = out.data();
    s.avail_out = uInt(out.size());
    const int status = deflate(&s, Z_FINISH);
    out.resize(s.total_out);
    deflateEnd(&s);
    return status == Z_STREAM_END ? out : std::vector<uint8_t>();
}
}  // namespace

bool encoding_of(const std::string& encoding, const std::string& compression, Encoding& into) {
    if (encoding == "csv" && compression.empty()) return into = Encoding::csv, true;
    if (encoding != "base64") return false;
    if (compression.empty()) return into = Encoding::base64, true;
    if (compression == "zlib") return into = Encoding::zlib, true;
    if (compression == "gzip") return into = Encoding::gzip, true;
    if (compression == "zstd") return into = Encoding::zstd, true;
    return false;
}

const char* encoding_name(Encoding e) { return e == Encoding::csv ? "csv" : "base64"; }

const char* compression_name(Encoding e) {
    switch (e) {
        case Encoding::zlib: return "zlib";
        case Encoding::gzip: return "gzip";
        case Encoding::zstd: return "zstd";
        default: return "";
    }
}

Decoded decode(const std::string& text, Encoding encoding, size_t max_cells) {
    Decoded d;
    if (encoding == Encoding::csv) {
        csv_cells(text, max_cells, d);
        return d;
    }
    std::vector<uint8_t> packed;
    if (!unbase64(text, packed)) {
        d.failure = "its base64 text is damaged";
        return d;
    }
    const size_t limit = (max_cells + 1) * 4;
    std::vector<uint8_t> bytes;
    if (encoding == Encoding::base64)
        bytes = std::move(packed);
    else
        d.failure = encoding == Encoding::zstd ? unzstd(packed, limit, bytes)
                                               : inflate_bytes(packed, encoding == Encoding::gzip, limit, bytes);
    if (!d.failure.empty()) return d;
    if (bytes.size() > limit) bytes.resize(limit);
    if (bytes.size() % 4 != 0) {
        d.failure = "its bytes are not whole cells";
        return d;
    }
    d.cells.resize(bytes.size() / 4);
    for (size_t i = 0; i < d.cells.size(); ++i)
        d.cells[i] = uint32_t(bytes[4 * i]) | uint32_t(bytes[4 * i + 1]) << 8 | uint32_t(bytes[4 * i + 2]) << 16 |
                     uint32_t(bytes[4 * i + 3]) << 24;
    return d;
}

std::string encode(const std::vector<uint32_t>& cells, int columns, Encoding encoding) {
    if (encoding == Encoding::csv) {
        std::string csv = "\n";
        for (size_t i = 0; i < cells.size(); ++i) {
            csv += std::to_string(cells[i]);
            if (i + 1 < cells.size()) csv += ',';
            if (columns > 0 && ((i + 1) % size_t(columns) == 0 || i + 1 == cells.size())) csv += '\n';
        }
        return csv;
    }
    const std::vector<uint8_t> raw = little_endian(cells);
    std::vector<uint8_t> packed;
    if (encoding == Encoding::base64) {
        packed = raw;
    } else if (encoding == Encoding::zstd) {
        packed.resize(ZSTD_compressBound(raw.size()));
        const size_t n = ZSTD_compress(packed.data(), packed.size(), raw.data(), raw.size(), ZSTD_CLEVEL_DEFAULT);
        packed.resize(ZSTD_isError(n) ? 0 : n);
    } else {
        packed = deflate_bytes(raw, encoding == Encoding::gzip);
    }
    return "\n   " + base64(packed) + "\n  ";
}

}  // namespace layer_data
