#include "model/map/map_text.h"

namespace map_text {
namespace {
// As the XML reader counts it: form feeds and vertical tabs too.
bool is_space(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f' || c == '\v'; }

bool is_name_char(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '-' ||
           c == '.' || c == ':';
}

// Past the construct starting at "<" at position at, or npos when it never ends.
size_t skip_special(const std::string& text, size_t at) {
    if (text.compare(at, 4, "<!--") == 0) {
        const size_t e = text.find("-->", at + 4);
        return e == std::string::npos ? e : e + 3;
    }
    if (text.compare(at, 9, "<![CDATA[") == 0) {
        const size_t e = text.find("]]>", at + 9);
        return e == std::string::npos ? e : e + 3;
    }
    if (text.compare(at, 2, "<?") == 0) {
        const size_t e = text.find("?>", at + 2);
        return e == std::string::npos ? e : e + 2;
    }
    if (text.compare(at, 2, "<!") == 0) {
        const size_t e = text.find('>', at + 2);
        return e == std::string::npos ? e : e + 1;
    }
    return 0;
}

// Past the tag starting at "<", quotes respected; npos when it never ends.
size_t tag_end(const std::string& text, size_t at) {
    char quote = 0;
    for (size_t i = at + 1; i < text.size(); ++i) {
        const char c = text[i];
        if (quote) {
            if (c == quote) quote = 0;
        } else if (c == '"' || c == '\'') {
            quote = c;
        } else if (c == '>') {
            return i + 1;
        }
    }
    return std::string::npos;
}

// Where the attribute's value starts (past the quote) and its quote, or npos.
size_t value_at(const std::string& tag, const std::string& name, char& quote) {
    char in_quote = 0;
    for (size_t i = 1; i + name.size() < tag.size(); ++i) {
        const char c = tag[i];
        if (in_quote) {
            if (c == in_quote) in_quote = 0;
            continue;
        }
        if (c == '"' || c == '\'') {
            in_quote = c;
            continue;
        }
        if (tag.compare(i, name.size(), name) != 0 || is_name_char(tag[i - 1])) continue;
        size_t j = i + name.size();
        while (j < tag.size() && is_space(tag[j])) ++j;
        if (j >= tag.size() || tag[j] != '=') continue;
        ++j;
        while (j < tag.size() && is_space(tag[j])) ++j;
        if (j >= tag.size() || (tag[j] != '"' && tag[j] != '\'')) continue;
        quote = tag[j];
        return j + 1;
    }
    return std::string::npos;
}
}  // namespace

Element child(const std::string& text, size_t begin, size_t end, const std::string& name) {
    int depth = 0;
    Element found;
    size_t at = begin;
    while (at < end) {
        at = text.find('<', at);
        if (at == std::string::npos || at >= end) break;
        if (const size_t past = skip_special(text, at)) {
            if (past == std::string::npos) break;
            at = past;
            continue;
        }
        const size_t close = tag_end(text, at);
        if (close == std::string::npos || close > end) break;
        const bool closing = text[at + 1] == '/';
        const bool empty = text[close - 2] == '/';
        // The reader allows blanks between "<" and the name.
        size_t name_at = at + (closing ? 2 : 1);
        while (name_at < close && is_space(text[name_at])) ++name_at;
        if (closing) {
            --depth;
            if (found.found && depth == 0) {
                found.content_end = at;
                found.end = close;
                return found;
            }
        } else {
            size_t n = name_at;
            while (n < close && is_name_char(text[n])) ++n;
            if (!found.found && depth == 0 && n - name_at == name.size() && text.compare(name_at, n - name_at, name) == 0) {
                found.found = true;
                found.tag_begin = at;
                found.tag_end = close;
                found.empty = empty;
                if (empty) {
                    found.content_end = close;
                    found.end = close;
                    return found;
                }
            }
            if (!empty) ++depth;
        }
        at = close;
    }
    return Element{};
}

std::string with_attribute(const std::string& tag, const std::string& name, const std::string& value) {
    char quote = '"';
    const size_t at = value_at(tag, name, quote);
    if (at != std::string::npos) {
        const size_t stop = tag.find(quote, at);
        return tag.substr(0, at) + value + tag.substr(stop);
    }
    const size_t close = tag.size() >= 2 && tag[tag.size() - 2] == '/' ? tag.size() - 2 : tag.size() - 1;
    return tag.substr(0, close) + " " + name + "=\"" + value + "\"" + tag.substr(close);
}

std::string attribute(const std::string& tag, const std::string& name) {
    char quote = '"';
    const size_t at = value_at(tag, name, quote);
    if (at == std::string::npos) return {};
    return tag.substr(at, tag.find(quote, at) - at);
}

std::string without_attribute(const std::string& tag, const std::string& name) {
    char quote = '"';
    const size_t at = value_at(tag, name, quote);
    if (at == std::string::npos) return tag;
    size_t start = tag.rfind(name, at);
    while (start > 0 && is_space(tag[start - 1])) --start;
    return tag.substr(0, start) + tag.substr(tag.find(quote, at) + 1);
}

std::string escaped(const std::string& text) {
    std::string out;
    for (char c : text) {
        switch (c) {
            case '&': out += "&amp;"; break;
            case '<': out += "&lt;"; break;
            case '>': out += "&gt;"; break;
            case '"': out += "&quot;"; break;
            default: out += c;
        }
    }
    return out;
}

}  // namespace map_text
