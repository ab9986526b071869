#pragma once

#include <cstdint>

#include "model/core/token_stream.h"
#include "ui/dialog_event.h"
#include "model/core/rectangle.h"

class Text_Writer;

// One control of a dialog. Items live in rows and talk to each other by
// events: a press yields {type, target} and the dialog delivers the type to
// the item whose id is the target. Subclasses keep the order of the virtuals.
class Dialog_Item {
public:
    static constexpr uint32_t no_id = uint32_t(-1);

    Dialog_Item(uint32_t id, uint32_t host);
    virtual ~Dialog_Item() = default;
    Dialog_Item(const Dialog_Item&) = delete;
    Dialog_Item& operator=(const Dialog_Item&) = delete;

    // -1 (all bits set) for items that hold no value.
    virtual int32_t get_value() const { return -1; }
    // Recomputes the item's size from what it shows.
    virtual void update() {}
    virtual Dialog_Event hit(int x, int y);
    virtual void receive(int32_t type);
    virtual void set_position(int x, int y);
    virtual void draw() {}
    // Called on every item as the dialog opens and when it is cancelled.
    virtual void begin() { state = 0; }
    virtual void cancel() {}
    virtual void save(Token_Stream& stream) const;
    // Reads what save wrote. The id read is not taken: an item keeps the id
    // it was built with, so a file from another layout shifts values only.
    virtual void load(Token_Stream& stream);

    // Logs the item's id, host and rectangle.
    void describe() const;

    void set_writer(Text_Writer* w) { writer = w; }
    Text_Writer* text_writer() const { return writer; }

    Rectangle area;
    uint32_t id;
    uint32_t host;
    uint32_t state = 0;

protected:
    Text_Writer* writer;
};
