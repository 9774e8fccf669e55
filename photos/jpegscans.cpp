// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "photos/jpegscans.h"

#include <QIODevice>

#include <array>

namespace morrowleaf {
namespace {

// Markers of ITU-T T.81, table B.1.
constexpr quint8 startOfScan = 0xDA;

bool standsAlone(quint8 marker) {
    return marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8);
}

bool startsFrame(quint8 marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

bool isSequential(quint8 frame) {
    return frame == 0xC0 || frame == 0xC1 || frame == 0xC9;
}

bool readByte(QIODevice& device, quint8& byte) {
    char c = 0;
    if (!device.getChar(&c)) {
        return false;
    }
    byte = static_cast<quint8>(c);
    return true;
}

bool nextMarker(QIODevice& device, quint8& marker) {
    quint8 byte = 0;
    while (readByte(device, byte)) {
        if (byte == 0xFF) {
            while (byte == 0xFF) {
                if (!readByte(device, byte)) {
                    return false;
                }
            }
            if (byte != 0) {
                marker = byte;
                return true;
            }
        }
    }
    return false;
}

bool scan(QIODevice& device) {
    int components = 0; // of the frame
    quint8 marker = 0;
    while (nextMarker(device, marker)) {
        if (standsAlone(marker)) {
            continue;
        }
        std::array<char, 2> length{};
        if (device.read(length.data(), 2) != 2) {
            return true;
        }
        const int rest = (static_cast<quint8>(length[0]) << 8 | static_cast<quint8>(length[1])) - 2;
        const qint64 end = device.pos() + rest;
        if (rest < 0) {
            return true;
        }
        if (startsFrame(marker)) {
            std::array<char, 6> frame{}; // precision, height, width, components
            if (device.read(frame.data(), 6) != 6) {
                return true;
            }
            components = static_cast<quint8>(frame[5]);
            if (!isSequential(marker)) {
                return true;
            }
        }
        if (marker == startOfScan) {
            quint8 inScan = 0;
            return !readByte(device, inScan) || components == 0 || inScan < components;
        }
        if (end > device.size() || !device.seek(end)) {
            return true;
        }
    }
    return true;
}

} // namespace

bool jpegHasManyScans(QIODevice& device) {
    const qint64 before = device.pos();
    device.seek(0);
    const bool many = scan(device);
    device.seek(before);
    return many;
}

} // namespace morrowleaf
