#pragma once

// How a run of a given length is filled with copies of a sprite piece_length
// long. Up to 16 pixels the run is one piece, stretched or cut to the length;
// longer runs are whole copies and one copy cut to the remainder. Calls
// piece(offset, source_length, drawn_length) for each copy.
template <class Piece>
void for_each_strip_piece(int length, int piece_length, Piece&& piece) {
    if (length <= 16 || piece_length <= 0) {
        piece(0, length < piece_length ? length : piece_length, length);
        return;
    }
    const int copies = length / piece_length;
    for (int i = 0; i < copies; ++i) piece(i * piece_length, piece_length, piece_length);
    const int rest = length - copies * piece_length;
    if (rest > 0) piece(copies * piece_length, rest, rest);
}
