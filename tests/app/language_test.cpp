// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/language.h"

#include <QDir>
#include <QTranslator>
#include <gtest/gtest.h>

namespace morrowleaf {
namespace {

using namespace Qt::Literals::StringLiterals;

QString chosen(const QStringList& wishes) {
    return chooseTranslation(wishes, {u"de"_s, u"fr"_s, u"he"_s, u"pt_BR"_s, u"zh_CN"_s});
}

TEST(Language, IsTheFirstWishThatTheProgramHas) {
    EXPECT_EQ(chosen({u"de-DE"_s, u"fr-FR"_s}), u"de"_s);
    EXPECT_EQ(chosen({u"fi-FI"_s, u"fi-Latn-FI"_s, u"fr"_s}), u"fr"_s);
    EXPECT_EQ(chosen({u"de-AT"_s, u"de-Latn-AT"_s}), u"de"_s) << "in every country";
    EXPECT_EQ(chosen({u"iw-IL"_s}), u"he"_s) << "by its old name";
}

TEST(Language, OfOneCountryIsForThatOnly) {
    EXPECT_EQ(chosen({u"pt-BR"_s, u"pt-Latn-BR"_s, u"pt"_s}), u"pt_BR"_s);
    EXPECT_EQ(chosen({u"pt"_s}), u"pt_BR"_s);
    EXPECT_EQ(chosen({u"pt-PT"_s, u"pt-Latn-PT"_s}), QString());
    EXPECT_EQ(chosen({u"zh-CN"_s, u"zh-Hans-CN"_s, u"zh"_s}), u"zh_CN"_s);
    EXPECT_EQ(chosen({u"zh-TW"_s, u"zh-Hant-TW"_s}), QString());
    EXPECT_EQ(chosen({u"zh-HK"_s, u"de"_s}), u"de"_s);
}

TEST(Language, IsEnglishOtherwise) {
    EXPECT_EQ(chosen({}), QString());
    EXPECT_EQ(chosen({u"C"_s}), QString());
    EXPECT_EQ(chosen({u"fi-FI"_s}), QString());
    EXPECT_EQ(chosen({u"en-GB"_s, u"de"_s}), QString()) << "English comes before German";
    EXPECT_EQ(chosen({u"nonsense"_s, u""_s}), QString());
}

TEST(Language, TranslationsAreInTheProgram) {
    const QStringList files = QDir(u":/i18n"_s).entryList();
    EXPECT_GE(files.size(), 15);
    for (const QString& file : files) {
        QTranslator translator;
        ASSERT_TRUE(translator.load(u":/i18n/"_s + file)) << file.toStdString();
        const QString quit = translator.translate("MenuActions", "Quit");
        EXPECT_FALSE(quit.isEmpty()) << file.toStdString();
        EXPECT_NE(quit, u"Quit"_s) << file.toStdString();
    }
}

} // namespace
} // namespace morrowleaf
