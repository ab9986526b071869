#pragma once

#include <cstdint>
#include <memory>

#include "ui/dialog_row.h"

class Texture;

// The rows dialogs are built from. Ids follow one pattern: a row with first
// id n holds its buttons at n (and n + 2) aimed at the value item n + 1.
std::unique_ptr<Dialog_Row> make_text_row(const char* text);
std::unique_ptr<Dialog_Row> make_image_row(int sprite);
std::unique_ptr<Dialog_Row> make_image_row(Texture& texture);
// A tick box (id, host id + 1) and its label; the value is read from id.
std::unique_ptr<Dialog_Row> make_tick_row(uint32_t id, bool checked, const char* label);
// Label, "Less" (id), the number (id + 1) and "More" (id + 2); the value is read from id + 1.
std::unique_ptr<Dialog_Row> make_number_row(uint32_t id, int32_t value, int32_t min, int32_t max,
                                            const char* label);
// "More" (id) and the text list (id + 1); the value is read from id + 1.
std::unique_ptr<Dialog_Row> make_list_row(uint32_t id, int32_t value, const char* list_text);
// "Ok" alone or "Ok" and "Cancel", both without an id.
std::unique_ptr<Dialog_Row> make_button_bar(bool with_cancel);
