#pragma once

class Stroke_Context;

// Connects the strokes to the tool options pane and the colour panes: the
// settings a press gathers, the colours a dropper takes, the return to the
// previous tool and the read-outs of the shape tools.
void link_tool_options(Stroke_Context& context);
