#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ui/dialog_item.h"
#include "ui/range.h"

// Shows one entry of a fixed list; "More" steps through it with wrap-around.
// The list text is entries separated by "," and ended by "$".
class Textlist_Dialog_Item : public Dialog_Item {
public:
    Textlist_Dialog_Item(uint32_t id, uint32_t host, int32_t value, const char* list_text);

    int32_t get_value() const override { return choice.value; }
    // As wide as the widest entry.
    void update() override;
    void receive(int32_t type) override;
    // Nothing when the choice is outside the list.
    void draw() override;
    void begin() override { state = uint32_t(choice.value); }
    void cancel() override { choice.value = int32_t(state); }
    void save(Token_Stream& stream) const override { choice.save(stream); }
    void load(Token_Stream& stream) override { choice.load_value(stream); }

    const std::vector<std::string>& entries() const { return *list; }
    // The entry shown, or null when the choice is outside the list.
    const char* current() const;

    Range choice;

private:
    std::unique_ptr<std::vector<std::string>> list;
};
