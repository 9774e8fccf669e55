// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/fontnames.h"

#include <QStringConverter>
#include <QtEndian>

#include <array>

namespace morrowleaf {

namespace {

enum NameId : quint16 {
    Family = 1,
    Style = 2,
    PostScript = 6,
    TypographicFamily = 16,
    TypographicStyle = 17
};

std::optional<quint16> number(const QByteArray& table, qsizetype at) {
    if (at < 0 || at + 2 > table.size()) {
        return std::nullopt;
    }
    return qFromBigEndian<quint16>(table.constData() + at);
}

struct Record {
    quint16 platform, encoding, language, name, length, offset;
};

std::optional<Record> recordAt(const QByteArray& table, qsizetype at) {
    std::array<quint16, 6> field{};
    for (std::size_t i = 0; i < field.size(); ++i) {
        const auto value = number(table, at + 2 * static_cast<qsizetype>(i));
        if (!value) {
            return std::nullopt;
        }
        field[i] = *value;
    }
    return Record{field[0], field[1], field[2], field[3], field[4], field[5]};
}

// English names first, then any language; 0 is of no use.
int preference(const Record& record) {
    constexpr quint16 macintosh = 1;
    constexpr quint16 windows = 3;
    if (record.platform == windows && record.encoding <= 1) {
        return record.language == 0x409 ? 4 : 2;
    }
    if (record.platform == 0) {
        return 3;
    }
    return record.platform == macintosh && record.encoding == 0 ? 1 : 0;
}

QString decoded(const Record& record, const QByteArray& bytes) {
    constexpr quint16 macintosh = 1;
    if (record.platform == macintosh) {
        return QString::fromLatin1(bytes);
    }
    return QStringDecoder(QStringDecoder::Utf16BE, QStringDecoder::Flag::Stateless).decode(bytes);
}

QString nameWithId(const QByteArray& table, quint16 id) {
    const quint16 count = number(table, 2).value_or(0);
    const qsizetype storage = number(table, 4).value_or(0);
    QString best;
    int bestPreference = 0;
    for (int i = 0; i < count; ++i) {
        const auto record = recordAt(table, 6 + 12 * i);
        if (!record) {
            break;
        }
        if (record->name != id || preference(*record) <= bestPreference) {
            continue;
        }
        const qsizetype begin = storage + record->offset;
        if (begin + record->length > table.size()) {
            continue;
        }
        const QString name = decoded(*record, table.mid(begin, record->length));
        if (!name.isEmpty()) {
            best = name;
            bestPreference = preference(*record);
        }
    }
    return best;
}

QString eitherName(const QByteArray& table, quint16 first, quint16 second) {
    const QString name = nameWithId(table, first);
    return name.isEmpty() ? nameWithId(table, second) : name;
}

} // namespace

std::optional<FontNames> readNameTable(const QByteArray& table) {
    FontNames names{nameWithId(table, PostScript), eitherName(table, TypographicFamily, Family),
                    eitherName(table, TypographicStyle, Style)};
    if (names.postScript.isEmpty()) {
        return std::nullopt;
    }
    return names;
}

} // namespace morrowleaf
