#pragma once

#include <vector>

// "Keyboard commands": every command that has a key, its key label and its
// name, in two columns in the order of the command table.
void show_keyboard_commands();
// "Mouse commands": what the buttons do beyond the tools.
void show_mouse_commands();

// One line of the keyboard list: the key label at (x, y) and the name 70
// pixels to its right. False, and nothing drawn, for a command without a key.
bool keyboard_row(int command, int x, int y);

// Where each keyed command stands in the keyboard list: the first column
// holds lines_per_column of them, the second the rest.
struct Keyboard_Line {
    int command;
    int column;
    int line;
};
std::vector<Keyboard_Line> keyboard_lines(int lines_per_column);
