// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/commandline.h"

#include <QCoreApplication>

#include <array>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Option {
    QLatin1StringView name;
    const char* meaning; // English
};

constexpr std::array options{
    Option{"--settings"_L1,
           QT_TRANSLATE_NOOP("CommandLine",
                             "open the settings window instead of showing the quotation")},
    Option{"--register-login"_L1,
           QT_TRANSLATE_NOOP("CommandLine", "start the program at login, and exit")},
    Option{"--selftest"_L1,
           QT_TRANSLATE_NOOP("CommandLine", "check the built-in quotations, and exit")},
    Option{"--help"_L1, QT_TRANSLATE_NOOP("CommandLine", "print this help, and exit")},
    Option{"--version"_L1, QT_TRANSLATE_NOOP("CommandLine", "print the version, and exit")},
};

QString translated(const char* text) {
    return QCoreApplication::translate("CommandLine", text);
}

} // namespace

Mode modeFor(const QStringList& arguments) {
    if (arguments.contains("--selftest"_L1)) {
        return Mode::SelfTest;
    }
    if (arguments.contains("--register-login"_L1)) {
        return Mode::RegisterLogin;
    }
    if (arguments.contains("--help"_L1)) {
        return Mode::Help;
    }
    if (arguments.contains("--version"_L1)) {
        return Mode::Version;
    }
    return Mode::Desktop;
}

QString helpText() {
    constexpr int column = 20; // of the meanings
    QStringList lines{
        //: "morrowleaf" is the command
        QCoreApplication::translate("CommandLine", "Usage: morrowleaf [OPTION]"),
        QString(),
        QCoreApplication::translate("CommandLine", "Greets you with one quotation."),
        QString(),
    };
    for (const Option& option : options) {
        lines << "  "_L1 + QString(option.name).leftJustified(column - 2) +
                     translated(option.meaning);
    }
    lines << QString()
          << QCoreApplication::translate("CommandLine",
                                         "Other arguments are ignored. More is in the manual "
                                         "page, morrowleaf(1).");
    return lines.join(u'\n');
}

QString versionText() {
    return u"Morrowleaf " MORROWLEAF_VERSION ""_s;
}

} // namespace morrowleaf
