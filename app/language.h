// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

namespace morrowleaf {

// The first of `translations` that fits one of `wishes`, best wish first, or an empty text
// for English, the language of the sources. Wishes are named as by
// QLocale::uiLanguages(), such as "pt-BR"; translations as their files are, such as "de"
// for every country or "pt_BR" for one.
QString chooseTranslation(const QStringList& wishes, const QStringList& translations);

// Lets every text made from now on be in the first language that the user's environment
// asks for and the program has, and windows be laid out in its direction. The texts of Qt
// follow if their translation is installed. Needs an application object; main thread.
void speakLanguageOfUser();

} // namespace morrowleaf
