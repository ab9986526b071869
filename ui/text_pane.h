#pragma once

#include "ui/pane.h"

// A titled pane whose owner writes into its client area; it draws as a Pane.
class Text_Pane : public Pane {
public:
    using Pane::Pane;
};
