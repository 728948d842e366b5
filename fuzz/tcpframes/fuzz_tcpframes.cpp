// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// The byte stream of a TcpSocketClient, cut into frames. The first byte chooses the sizes
// of the chunks in which the rest arrives; after each chunk one message is taken, as on a
// readyRead, and at the end the buffer is drained. Whatever the chunks, the messages must
// be those of the stream cut in one go.
#include "UpdateProtocol_p.h"

#include <QIODevice>
#include <QtEndian>

#include <cstdint>
#include <vector>

namespace {
// A socket stand-in: sequential, and only the bytes that "arrived" can be read.
class Arrivals : public QIODevice
{
public:
    explicit Arrivals(const QByteArray &stream)
        : m_stream(stream)
    {
        open(QIODevice::ReadOnly);
    }
    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override { return m_arrived - m_read + QIODevice::bytesAvailable(); }
    void arrive(qint64 count) { m_arrived = qMin<qint64>(m_arrived + count, m_stream.size()); }
    bool allArrived() const { return m_arrived == m_stream.size(); }
    qint64 unread() const { return m_stream.size() - m_read + QIODevice::bytesAvailable(); }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        const qint64 count = qMin(maxSize, m_arrived - m_read);
        if (count > 0)
            memcpy(data, m_stream.constData() + m_read, size_t(count));
        m_read += count;
        return count;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QByteArray m_stream;
    qint64 m_arrived = 0;
    qint64 m_read = 0;
};

// The stream cut in one go: frame length, then the message field within the frame.
std::vector<QByteArray> cutAtOnce(const QByteArray &stream)
{
    std::vector<QByteArray> messages;
    const auto at = [&](qint64 pos) { return reinterpret_cast<const uchar *>(stream.constData()) + pos; };
    qint64 pos = 0;
    const qint64 size = stream.size();
    while (size - pos >= 8) {
        const qint64 frame = qFromBigEndian<qint64>(at(pos));
        pos += 8;
        if (frame < 0) {  // the message field alone
            if (size - pos < 4)
                break;
            const quint32 length = qFromBigEndian<quint32>(at(pos));
            if (length == 0xFFFFFFFFu) {
                messages.push_back(QByteArray());
                pos += 4;
                continue;
            }
            if (size - pos - 4 < qint64(length))
                break;
            messages.push_back(stream.mid(int(pos + 4), int(length)));
            pos += 4 + length;
            continue;
        }
        if (frame > size - pos)
            break;
        if (frame >= 4) {
            const quint32 length = qFromBigEndian<quint32>(at(pos));
            if (length == 0xFFFFFFFFu)
                messages.push_back(QByteArray());
            else if (length <= frame - 4)
                messages.push_back(stream.mid(int(pos + 4), int(length)));
        }
        pos += frame;
    }
    return messages;
}
}

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    // Frame lengths must never turn into allocations.
    static char limit[] = "-malloc_limit_mb=64";
    static char *args[64];
    int n = 0;
    for (; n < *argc && n < 62; ++n)
        args[n] = (*argv)[n];
    args[n++] = limit;
    args[n] = nullptr;
    *argc = n;
    *argv = args;
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *input, size_t size)
{
    if (size < 1)
        return 0;
    const QByteArray stream(reinterpret_cast<const char *>(input + 1), int(size - 1));
    const int chunk = input[0] == 0 ? stream.size() + 1 : input[0];
    Arrivals device(stream);
    qint64 blockSize = 0;
    std::vector<QByteArray> messages;
    QByteArray message;
    while (!device.allArrived()) {
        device.arrive(chunk);
        if (CommonGUI::UpdateProtocol::takeFrame(&device, blockSize, &message))
            messages.push_back(message);
    }
    // Drain: each call takes a frame or waits; a wait with nothing read means the end.
    for (;;) {
        const qint64 unread = device.unread();
        const qint64 announced = blockSize;
        if (CommonGUI::UpdateProtocol::takeFrame(&device, blockSize, &message))
            messages.push_back(message);
        else if (device.unread() == unread && blockSize == announced)
            break;
    }
    if (messages != cutAtOnce(stream))
        __builtin_trap();
    return 0;
}
