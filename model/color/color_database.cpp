#include "model/color/color_database.h"

#include "model/core/fatal.h"

Color_Database* g_color_database = nullptr;

// "Dark blue" is pure blue on purpose.
const Named_Color named_color_table[] = {
    {Color(196, 2, 52), "Red"},
    {Color(220, 20, 60), "Crimson"},
    {Color(255, 192, 203), "Pink"},
    {Color(197, 30, 58), "Cardinal red"},
    {Color(150, 0, 24), "Carmine"},
    {Color(101, 0, 11), "Rosewood"},
    {Color(192, 128, 129), "Old rose"},
    {Color(255, 127, 127), "Light red"},
    {Color(115, 54, 53), "Garnet"},
    {Color(227, 66, 52), "Vermilion"},
    {Color(139, 0, 0), "Dark red"},
    {Color(255, 191, 0), "Amber"},
    {Color(153, 102, 204), "Amethyst"},
    {Color(250, 235, 215), "Antique white"},
    {Color(0, 255, 255), "Aqua"},
    {Color(127, 255, 212), "Aquamarine"},
    {Color(0, 127, 255), "Azure"},
    {Color(245, 245, 220), "Beige"},
    {Color(0, 0, 0), "Black"},
    {Color(0, 0, 255), "Dark blue"},
    {Color(51, 51, 153), "Pigment blue"},
    {Color(233, 116, 81), "Burnt sienna"},
    {Color(138, 51, 36), "Burnt umber"},
    {Color(0, 107, 60), "Cadmium green"},
    {Color(0, 0, 0), "$$$"},
};

Color_Database::Color_Database() : Color_Database(named_color_table) {}

Color_Database::Color_Database(const Named_Color* table) : source(table) {
    for (const Named_Color* r = table; r->name[0] != '$'; ++r)
        if (!names.emplace(r->color.word(), r->name).second) fatal_error("Matching id found in color data.");
}

const char* Color_Database::name_of(Color c) const {
    const auto found = names.find(c.word());
    return found == names.end() ? no_name : found->second;
}

void Color_Database::entries_into(std::vector<Named_Color>& list) const {
    for (const Named_Color* r = source; r->name[0] != '$'; ++r) list.push_back(*r);
}
