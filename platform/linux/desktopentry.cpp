// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/desktopentry.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace morrowleaf {

namespace {

constexpr qint64 largestEntry = 64 * 1024; // bytes

QString unescaped(const QString& value) {
    QString text;
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] != '\\' || i + 1 == value.size()) {
            text += value[i];
            continue;
        }
        switch (value[++i].unicode()) {
        case 's':
            text += ' ';
            break;
        case 'n':
            text += '\n';
            break;
        case 't':
            text += '\t';
            break;
        case 'r':
            text += '\r';
            break;
        default:
            text += value[i];
        }
    }
    return text;
}

} // namespace

std::optional<QMap<QString, QString>> readDesktopEntry(const QString& path) {
    // Anything but a plain file may block for ever.
    if (!QFileInfo(path).isFile()) {
        return std::nullopt;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    const QStringList lines = QString::fromUtf8(file.read(largestEntry)).split('\n');
    std::optional<QMap<QString, QString>> entry;
    bool inside = false;
    for (const QString& raw : lines) {
        const QString line = raw.trimmed();
        if (line.startsWith('[')) {
            inside = line == "[Desktop Entry]";
            if (inside && !entry) {
                entry.emplace();
            }
            continue;
        }
        const qsizetype equals = line.indexOf('=');
        if (inside && equals > 0 && !line.startsWith('#')) {
            entry->insert(line.left(equals).trimmed(), unescaped(line.mid(equals + 1).trimmed()));
        }
    }
    return entry;
}

QString desktopString(const QString& text) {
    QString escaped = text;
    escaped.replace('\\', "\\\\").replace('\n', "\\n").replace('\t', "\\t").replace('\r', "\\r");
    if (escaped.startsWith(' ')) {
        escaped.replace(0, 1, "\\s");
    }
    return escaped;
}

QString desktopCommand(const QString& program) {
    QString quoted;
    for (const QChar c : program) {
        if (c == '"' || c == '`' || c == '$' || c == '\\') {
            quoted += '\\';
        }
        quoted += c;
        if (c == '%') {
            quoted += '%';
        }
    }
    return '"' + desktopString(quoted) + '"';
}

} // namespace morrowleaf
