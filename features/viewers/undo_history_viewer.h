#pragma once

class Undo_History;

// "View undo history": a box with one row per record, the oldest at the
// bottom and the rows climbing, each with the record's picture; the record
// shown now stands out. Runs until "Ok", Escape or a quit.
void show_undo_history(const Undo_History& history);
