#pragma once

#include <cstddef>
#include <string>

// Edits the text of a map file in place: the map tools that share the file
// keep their layout, whitespace and every element this editor does not own
// byte for byte, because only the pieces named here are replaced.
namespace map_text {

// Where the parts of an element stand in the text: its opening tag (from "<"
// to ">"), and for an element with content, the content up to its closing tag.
struct Element {
    bool found = false;
    size_t tag_begin = 0;
    size_t tag_end = 0;  // just past ">"
    bool empty = false;  // "<name .../>"
    size_t content_end = 0;  // where "</name>" starts
    size_t end = 0;  // just past the closing tag (or the tag of an empty element)
};

// The first element of that name among the children of the element whose
// content runs from begin to end (the document's top level: 0 and the text's
// size). Comments, processing instructions and CDATA are skipped.
Element child(const std::string& text, size_t begin, size_t end, const std::string& name);

// The tag with the attribute set to the value: replaced where it stands, or
// added before the tag's end.
std::string with_attribute(const std::string& tag, const std::string& name, const std::string& value);
// The attribute's value, or empty when the tag has none.
std::string attribute(const std::string& tag, const std::string& name);
// The tag without the attribute.
std::string without_attribute(const std::string& tag, const std::string& name);
// The text as an attribute's value holds it: &, <, > and " as entities.
std::string escaped(const std::string& text);

}  // namespace map_text
