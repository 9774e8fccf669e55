// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// Draws frames of the quote screen off-screen, for looking at and comparing.
#include "backdrop/backdrop.h"
#include "photos/bgstore.h"
#include "quotes/schedule.h"
#include "screen/quotescreen.h"
#include "screen/quoteview.h"
#include "settings/prefs.h"
#include "settings/settingsstore.h"
#include "textanim/fonts.h"
#include "tools/contactsheet.h"
#include "tools/sourcepath.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <cstdlib>

using namespace morrowleaf;

namespace {

[[noreturn]] void fail(const QString& sentence) {
    QTextStream(stderr) << "snapshot: " << sentence << '\n';
    std::exit(1);
}

void addOptions(QCommandLineParser& parser) {
    parser.setApplicationDescription(
        "Draws frames of the quote screen without a display, as PNG files.");
    parser.addHelpOption();
    parser.addOptions({
        {"settings", "Settings file (JSON); what it lacks has its default.", "file"},
        {"set", "One setting, such as paletteIndex=7; may be repeated.", "key=value"},
        {"size", "Size of the screen in points (1512x982).", "WxH", "1512x982"},
        {"dpr", "Device pixels to a point (1).", "ratio", "1"},
        {"quote", "The quotation; without it, that of the day.", "text"},
        {"author", "Its author.", "text", ""},
        {"date", "Local date and time (2025-11-14T09:30).", "date", "2025-11-14T09:30"},
        {"zone", "Time zone of the date (UTC).", "id", "UTC"},
        {"locale", "Locale of the date (en_US).", "name", "en_US"},
        {"at", "Instants in seconds since the appearance, with commas (6).", "list", "6"},
        {"editing", "Keep the width of the appearance editor free."},
        {"resources", "Folder that holds Fonts and Backgrounds.", "folder",
         morrowleaf::sourcePath("resources")},
        {"out", "Folder for the frames (out).", "folder", "out"},
        {"name", "Beginning of the file names (frame).", "text", "frame"},
        {"sheet", "Write one contact sheet instead of frames.", "file"},
        {"columns", "Pictures in a row of the sheet (4).", "count", "4"},
        {"cell", "Width of a picture of the sheet in pixels (480).", "pixels", "480"},
    });
}

QSizeF parseSize(const QString& text) {
    const QStringList parts = text.split(QLatin1Char('x'));
    const QSizeF size(parts.value(0).toDouble(), parts.value(1).toDouble());
    if (parts.size() != 2 || size.isEmpty() || size.width() > 20000 || size.height() > 20000) {
        fail("a size looks like 1512x982");
    }
    return size;
}

// As JSON where it reads as such, else as a text.
QJsonValue parseValue(const QString& text) {
    const QByteArray wrapped = "[" + text.toUtf8() + "]";
    const QJsonArray array = QJsonDocument::fromJson(wrapped).array();
    return array.size() == 1 ? array.first() : QJsonValue(text);
}

void readSettings(const QCommandLineParser& parser, SettingsStore& store) {
    registerAppDefaults(store);
    if (parser.isSet("settings")) {
        QFile file(parser.value("settings"));
        if (!file.open(QIODevice::ReadOnly)) {
            fail("cannot read " + file.fileName());
        }
        const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
        if (!document.isObject()) {
            fail(file.fileName() + " is not a settings file");
        }
        const QJsonObject settings = document.object();
        for (auto it = settings.begin(); it != settings.end(); ++it) {
            store.set(it.key(), it.value());
        }
    }
    for (const QString& pair : parser.values("set")) {
        const auto equals = pair.indexOf(QLatin1Char('='));
        if (equals < 1) {
            fail("a setting looks like key=value");
        }
        store.set(pair.left(equals), parseValue(pair.mid(equals + 1)));
    }
}

Moment parseMoment(const QCommandLineParser& parser) {
    const QTimeZone zone(parser.value("zone").toUtf8());
    const QDateTime local = QDateTime::fromString(parser.value("date"), Qt::ISODate);
    if (!zone.isValid() || !local.isValid()) {
        fail("a date looks like 2025-11-14T09:30, a zone like Europe/Paris");
    }
    const QDateTime zoned(local.date(), local.time(), zone);
    return {static_cast<double>(zoned.toMSecsSinceEpoch()) / 1000, zone};
}

void save(const QImage& picture, const QString& path) {
    if (!picture.save(path)) {
        fail("cannot write " + path);
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
    const QString resources = parser.value("resources");
    const QTemporaryDir nowhere;
    BGStore photos(store, resources + "/Backgrounds", nowhere.path());
    FontBook fonts;
    fonts.registerBundledFonts(resources + "/Fonts");

    QuoteViewState state;
    state.settings = readViewSettings(store);
    state.size = parseSize(parser.value("size"));
    state.mainScreen = state.size;
    state.devicePixelRatio = std::clamp(parser.value("dpr").toDouble(), 0.5, 8.0);
    state.sideInset = parser.isSet("editing") ? inspectorWidth : 0;
    state.moment = parseMoment(parser);
    state.locale = QLocale(parser.value("locale"));
    state.quote = parser.isSet("quote") ? Quote{parser.value("quote"), parser.value("author")}
                                        : quoteOfTheDay(state.moment);
    const std::shared_ptr<const Photo> photo = photos.image(state.settings.bgImagePath);
    state.palette = viewPalette(state.settings, photo != nullptr, state.moment);
    BackdropState backdrop = backdropFor(state.settings, state.palette, photo != nullptr);
    if (photo) {
        backdrop.photo = photo->decodeFilling((state.size * state.devicePixelRatio).toSize());
    }

    const QuoteView view(state, fonts);
    BackdropPainter painter;
    QList<QImage> frames;
    QStringList instants;
    for (const QString& instant : parser.value("at").split(QLatin1Char(','))) {
        bool isNumber = false;
        const double seconds = instant.toDouble(&isNumber);
        if (!isNumber) {
            fail("instants look like 0,0.5,2");
        }
        frames.append(renderFrame(painter, backdrop, view, seconds,
                                  state.moment.unixSeconds - unixToReference + seconds));
        instants.append(instant.trimmed() + " s");
    }
    if (parser.isSet("sheet")) {
        save(contactSheet(frames, instants, parser.value("columns").toInt(),
                          std::max(parser.value("cell").toInt(), 16)),
             parser.value("sheet"));
        return 0;
    }
    const QDir out(parser.value("out"));
    out.mkpath(".");
    for (int i = 0; i < frames.size(); ++i) {
        frames[i].setDevicePixelRatio(1);
        save(frames[i], out.filePath(parser.value("name") + "-" +
                                     instants[i].chopped(2).replace('.', '_') + ".png"));
    }
    return 0;
}
