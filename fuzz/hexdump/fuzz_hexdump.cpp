// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Arbitrary bytes through the buffer: the first bytes choose the dump range,
// address width and offset, the rest is the data.
#include "XByteArray.h"

#include <cstdint>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *input, size_t size)
{
    if (size < 8)
        return 0;
    int16_t start, end;
    std::memcpy(&start, input, 2);
    std::memcpy(&end, input + 2, 2);
    const int width = input[4];
    int offset;
    std::memcpy(&offset, input + 5, 3);
    offset &= 0xffffff;
    XByteArray buffer;
    buffer.setData(QByteArray(reinterpret_cast<const char *>(input + 8), int(size - 8)));
    buffer.setAddressWidth(width);
    buffer.setAddressOffset(offset);
    const QString dump = buffer.toRedableString(start, end);
    // Every line has the same shape.
    if (!dump.isEmpty() && !dump.endsWith(QLatin1Char('\n')))
        __builtin_trap();
    buffer.setBytesEnabled(input[4] * 4);
    buffer.toRedableString(0, -1);
    return 0;
}
