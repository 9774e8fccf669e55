// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// Draws frames of the quote screen without a display, for viewing and comparing.
#include "backdrop/backdrop.h"
#include "photos/photo.h"
#include "platform/files.h"
#include "quotes/schedule.h"
#include "screen/quotescreen.h"
#include "screen/quoteview.h"
#include "settings/prefs.h"
#include "settings/settingsstore.h"
#include "textanim/fonts.h"
#include "tools/sourcepath.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QTextStream>

#include <algorithm>
#include <cstdlib>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

[[noreturn]] void fail(const QString& sentence) {
    QTextStream(stderr) << "snapshot: " << sentence << '\n';
    std::exit(1);
}

void addOptions(QCommandLineParser& parser) {
    parser.setApplicationDescription(
        u"Draws frames of the quote screen without a display, as PNG files."_s);
    parser.addHelpOption();
    parser.addOptions({
        {u"settings"_s, u"Settings file (JSON); what it lacks has its default."_s, u"file"_s},
        {u"set"_s, u"One setting, such as paletteIndex=7; may be repeated."_s, u"key=value"_s},
        {u"size"_s, u"Size of the screen in points (1512x982)."_s, u"WxH"_s, u"1512x982"_s},
        {u"dpr"_s, u"Device pixels to a point (1)."_s, u"ratio"_s, u"1"_s},
        {u"quote"_s, u"The quotation; without it, that of the day."_s, u"text"_s},
        {u"author"_s, u"Its author."_s, u"text"_s, QString()},
        {u"date"_s, u"Local date and time (2025-11-14T09:30)."_s, u"date"_s, u"2025-11-14T09:30"_s},
        {u"zone"_s, u"Time zone of the date (UTC)."_s, u"id"_s, u"UTC"_s},
        {u"locale"_s, u"Locale of the date (en_US)."_s, u"name"_s, u"en_US"_s},
        {u"at"_s, u"Instants in seconds since the appearance, with commas (6)."_s, u"list"_s,
         u"6"_s},
        {u"editing"_s, u"Keep the width of the appearance editor free."_s},
        {u"resources"_s, u"Folder that holds Fonts and Backgrounds."_s, u"folder"_s,
         sourcePath(u"resources"_s)},
        {u"out"_s, u"Folder for the frames (out)."_s, u"folder"_s, u"out"_s},
        {u"name"_s, u"Beginning of the file names (frame)."_s, u"text"_s, u"frame"_s},
        {u"sheet"_s, u"Write one contact sheet instead of frames."_s, u"file"_s},
        {u"columns"_s, u"Pictures in a row of the sheet (4)."_s, u"count"_s, u"4"_s},
        {u"cell"_s, u"Width of a picture of the sheet in pixels (480)."_s, u"pixels"_s, u"480"_s},
    });
}

QSizeF parseSize(const QString& text) {
    const QStringList parts = text.split(u'x');
    const QSizeF size(parts.value(0).toDouble(), parts.value(1).toDouble());
    if (parts.size() != 2 || size.isEmpty() || size.width() > 20000 || size.height() > 20000) {
        fail(u"a size looks like 1512x982"_s);
    }
    return size;
}

// Parses a value as JSON if it is valid JSON, otherwise takes it as a string.
QJsonValue parseValue(const QString& text) {
    const QByteArray wrapped = "[" + text.toUtf8() + "]";
    const QJsonArray array = QJsonDocument::fromJson(wrapped).array();
    return array.size() == 1 ? array.first() : QJsonValue(text);
}

void readSettings(const QCommandLineParser& parser, SettingsStore& store) {
    registerAppDefaults(store);
    if (parser.isSet(u"settings"_s)) {
        QFile file(parser.value(u"settings"_s));
        if (!file.open(QIODevice::ReadOnly)) {
            fail("cannot read "_L1 + file.fileName());
        }
        const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
        if (!document.isObject()) {
            fail(file.fileName() + " is not a settings file"_L1);
        }
        const QJsonObject settings = document.object();
        for (auto it = settings.begin(); it != settings.end(); ++it) {
            store.set(it.key(), it.value());
        }
    }
    for (const QString& pair : parser.values(u"set"_s)) {
        const auto equals = pair.indexOf(u'=');
        if (equals < 1) {
            fail(u"a setting looks like key=value"_s);
        }
        store.set(pair.left(equals), parseValue(pair.mid(equals + 1)));
    }
}

Moment parseMoment(const QCommandLineParser& parser) {
    const QTimeZone zone(parser.value(u"zone"_s).toUtf8());
    const QDateTime local = QDateTime::fromString(parser.value(u"date"_s), Qt::ISODate);
    if (!zone.isValid() || !local.isValid()) {
        fail(u"a date looks like 2025-11-14T09:30, a zone like Europe/Paris"_s);
    }
    const QDateTime zoned(local.date(), local.time(), zone);
    return {static_cast<double>(zoned.toMSecsSinceEpoch()) / 1000, zone};
}

// All pictures in a grid on grey, each `cellWidth` pixels wide with its caption below.
QImage contactSheet(const QList<QImage>& pictures, const QStringList& captions, int columns,
                    int cellWidth) {
    constexpr int gap = 12; // pixels, like all lengths here
    constexpr int captionHeight = 22;
    QList<QImage> cells;
    int cellHeight = 1;
    for (QImage picture : pictures) {
        picture.setDevicePixelRatio(1);
        cells.append(picture.scaledToWidth(cellWidth, Qt::SmoothTransformation));
        cellHeight = std::max(cellHeight, cells.last().height());
    }
    const int across = std::max(1, std::min(columns, static_cast<int>(cells.size())));
    const int down = (static_cast<int>(cells.size()) + across - 1) / across;
    QImage sheet(across * (cellWidth + gap) + gap, down * (cellHeight + captionHeight + gap) + gap,
                 QImage::Format_RGB32);
    sheet.fill(0x808080);
    QPainter painter(&sheet);
    painter.setPen(Qt::white);
    for (int i = 0; i < cells.size(); ++i) {
        const QPoint at(gap + i % across * (cellWidth + gap),
                        gap + i / across * (cellHeight + captionHeight + gap));
        painter.drawImage(at, cells[i]);
        painter.drawText(QRect(at.x(), at.y() + cellHeight, cellWidth, captionHeight),
                         Qt::AlignCenter, captions.value(i));
    }
    return sheet;
}

QImage readPhoto(const QString& path, const QSize& size) {
    QFile file;
    return openRegularFile(file, path) ? decodePhoto(file, size) : QImage();
}

void save(const QImage& picture, const QString& path) {
    if (!picture.save(path)) {
        fail("cannot write "_L1 + path);
    }
    QTextStream(stdout) << path << '\n';
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication app(argc, argv);
    QCommandLineParser parser;
    addOptions(parser);
    parser.process(app);

    SettingsStore store;
    readSettings(parser, store);
    const QString resources = parser.value(u"resources"_s);
    FontBook fonts;
    fonts.registerBundledFonts(resources + "/Fonts"_L1);

    QuoteViewState state;
    state.settings = readViewSettings(store);
    state.size = parseSize(parser.value(u"size"_s));
    state.mainScreen = state.size;
    state.devicePixelRatio = std::clamp(parser.value(u"dpr"_s).toDouble(), 0.5, 8.0);
    state.sideInset = parser.isSet(u"editing"_s) ? inspectorWidth : 0;
    state.moment = parseMoment(parser);
    state.locale = QLocale(parser.value(u"locale"_s));
    state.quote = parser.isSet(u"quote"_s)
                      ? Quote{parser.value(u"quote"_s), parser.value(u"author"_s)}
                      : quoteOfTheDay(state.moment);
    const QImage photo =
        readPhoto(state.settings.bgImagePath, (state.size * state.devicePixelRatio).toSize());
    state.palette = viewPalette(state.settings, !photo.isNull(), state.moment);
    BackdropState backdrop = backdropFor(state.settings, state.palette, !photo.isNull());
    backdrop.photo = photo;

    const QuoteView view(state, fonts);
    BackdropPainter painter;
    QList<QImage> frames;
    QStringList instants;
    for (const QString& instant : parser.value(u"at"_s).split(u',')) {
        bool isNumber = false;
        const double seconds = instant.toDouble(&isNumber);
        if (!isNumber) {
            fail(u"instants look like 0,0.5,2"_s);
        }
        frames.append(renderFrame(painter, backdrop, view, seconds,
                                  state.moment.unixSeconds - unixToReference + seconds));
        instants.append(instant.trimmed() + " s"_L1);
    }
    if (parser.isSet(u"sheet"_s)) {
        save(contactSheet(frames, instants, parser.value(u"columns"_s).toInt(),
                          std::max(parser.value(u"cell"_s).toInt(), 16)),
             parser.value(u"sheet"_s));
        return 0;
    }
    const QDir out(parser.value(u"out"_s));
    out.mkpath(u"."_s);
    for (int i = 0; i < frames.size(); ++i) {
        frames[i].setDevicePixelRatio(1);
        save(frames[i], out.filePath(parser.value(u"name"_s) + u'-' +
                                     instants[i].chopped(2).replace(u'.', u'_') + ".png"_L1));
    }
    return 0;
}
