// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <algorithm>

// The cursor and the selection of the hex view as one value. The cursor counts
// nibbles (byte = nibble / 2) so the hex column can type digit by digit; the
// selection always runs between the anchor and the cursor's byte boundary, as
// in a text editor, so mouse and keyboard extend it alike.
struct HexCursor
{
    int nibble = 0;   // 0 .. 2 * size
    int anchor = 0;   // byte boundary where the selection started
    bool ascii = false;  // typing goes into the character column

    int byte() const { return nibble / 2; }
    int selectionStart() const { return std::min(anchor, byte()); }
    int selectionEnd() const { return std::max(anchor, byte()); }
    bool hasSelection() const { return anchor != byte(); }

    // Moves the cursor; without select the selection collapses onto it.
    void moveTo(int toNibble, bool select, int size)
    {
        if (select && !hasSelection())
            anchor = byte();
        nibble = std::clamp(toNibble, 0, 2 * size);
        if (select || ascii)
            nibble &= ~1;
        if (!select)
            anchor = byte();
    }
    void select(int from, int to, int size)
    {
        anchor = std::clamp(from, 0, size);
        nibble = 2 * std::clamp(to, 0, size);
    }
    void clamp(int size)
    {
        anchor = std::clamp(anchor, 0, size);
        nibble = std::clamp(nibble, 0, 2 * size);
    }

    bool operator==(const HexCursor &o) const
    {
        return nibble == o.nibble && anchor == o.anchor && ascii == o.ascii;
    }
    bool operator!=(const HexCursor &o) const { return !(*this == o); }
};
