// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/language.h"

#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString folder = u":/i18n"_s;
const QString prefix = u"morrowleaf_"_s;

// The names of the translations that the program contains.
QStringList ownTranslations() {
    QStringList names;
    for (const QString& file : QDir(folder).entryList({prefix + "*.qm"_L1})) {
        names << file.sliced(prefix.size()).chopped(3);
    }
    return names;
}

bool fits(const QString& translation, const QLocale& wish) {
    const QLocale own(translation);
    return own.language() == wish.language() &&
           (!translation.contains(u'_') || own.territory() == wish.territory());
}

void install(const QString& file, const QString& from) {
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(file, from)) {
        QCoreApplication::installTranslator(translator);
    }
}

} // namespace

QString chooseTranslation(const QStringList& wishes, const QStringList& translations) {
    for (const QString& name : wishes) {
        const QLocale wish(name);
        if (wish.language() == QLocale::English) {
            return {};
        }
        const auto found =
            std::find_if(translations.begin(), translations.end(),
                         [&](const QString& translation) { return fits(translation, wish); });
        if (found != translations.end()) {
            return *found;
        }
    }
    return {};
}

void speakLanguageOfUser() {
    const QString name = chooseTranslation(QLocale::system().uiLanguages(), ownTranslations());
    const QLocale language = name.isEmpty() ? QLocale(QLocale::English) : QLocale(name);
    // Decides how widgets write capitals. Dates are written as QLocale::system() says.
    QLocale::setDefault(language);
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr) {
        QGuiApplication::setLayoutDirection(language.textDirection());
    }
    if (!name.isEmpty()) {
        install("qtbase_"_L1 + name, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
        install(prefix + name, folder);
    }
}

} // namespace morrowleaf
