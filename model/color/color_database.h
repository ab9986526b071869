#pragma once

#include <cstdint>
#include <cstddef>
#include <map>
#include <vector>

#include "model/color/color.h"

// A colour with its name; a table of them ends with a record whose name
// begins with "$".
struct Named_Color {
    Color color;
    const char* name;
};

// The program's named colours, looked up by the exact 32-bit colour value:
// a colour that differs from a named one only in alpha has no name.
class Color_Database {
public:
    static constexpr const char* no_name = "---";

    // Built from the program's own table; a colour listed twice ends the
    // program with "Matching id found in color data.".
    Color_Database();
    explicit Color_Database(const Named_Color* table);

    // The name of an exactly equal colour, or "---".
    const char* name_of(Color c) const;
    bool has(Color c) const { return names.count(c.word()) != 0; }
    size_t size() const { return names.size(); }
    // Every record of the table, in table order.
    void entries_into(std::vector<Named_Color>& list) const;

private:
    const Named_Color* source;
    std::map<uint32_t, const char*> names;
};

extern const Named_Color named_color_table[];
extern Color_Database* g_color_database;
