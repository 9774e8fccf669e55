// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/desktopentry.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 largestEntry = 64 * 1024; // bytes

QString unescaped(const QString& value) {
    QString text;
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] != u'\\' || i + 1 == value.size()) {
            text += value[i];
            continue;
        }
        switch (value[++i].unicode()) {
        case 's':
            text += u' ';
            break;
        case 'n':
            text += u'\n';
            break;
        case 't':
            text += u'\t';
            break;
        case 'r':
            text += u'\r';
            break;
        default:
            text += value[i];
        }
    }
    return text;
}

} // namespace

std::optional<QMap<QString, QString>> readDesktopEntry(const QString& path) {
    // Opening a pipe or a device could block.
    if (!QFileInfo(path).isFile()) {
        return std::nullopt;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    const QStringList lines = QString::fromUtf8(file.read(largestEntry)).split(u'\n');
    std::optional<QMap<QString, QString>> entry;
    bool inside = false;
    for (const QString& raw : lines) {
        const QString line = raw.trimmed();
        if (line.startsWith(u'[')) {
            inside = line == "[Desktop Entry]"_L1;
            if (inside && !entry) {
                entry.emplace();
            }
            continue;
        }
        const qsizetype equals = line.indexOf(u'=');
        if (inside && equals > 0 && !line.startsWith(u'#')) {
            entry->insert(line.left(equals).trimmed(), unescaped(line.mid(equals + 1).trimmed()));
        }
    }
    return entry;
}

QString desktopString(const QString& text) {
    QString escaped = text;
    escaped.replace(u'\\', "\\\\"_L1)
        .replace(u'\n', "\\n"_L1)
        .replace(u'\t', "\\t"_L1)
        .replace(u'\r', "\\r"_L1);
    if (escaped.startsWith(u' ')) {
        escaped.replace(0, 1, u"\\s"_s);
    }
    return escaped;
}

QString desktopCommand(const QString& program) {
    QString quoted;
    for (const QChar c : program) {
        if (c == u'"' || c == u'`' || c == u'$' || c == u'\\') {
            quoted += u'\\';
        }
        quoted += c;
        if (c == u'%') {
            quoted += u'%';
        }
    }
    return u'"' + desktopString(quoted) + u'"';
}

} // namespace morrowleaf
