// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/fonts.h"
#include "tools/sourcepath.h"

#include <QDir>
#include <QFile>
#include <QRawFont>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cmath>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString shipped = sourcePath(u"resources/Fonts"_s);

const FontBook& shippedBook() {
    static const FontBook book = [] {
        FontBook filled;
        filled.registerBundledFonts(shipped);
        return filled;
    }();
    return book;
}

// The PostScript name of the face that Qt resolves the font to.
QString resolved(const TextFont& font) {
    const auto names = readNameTable(QRawFont::fromFont(font.face).fontTable("name"));
    return names ? names->postScript : QString();
}

TEST(FontBook, FindsEveryShippedFaceByItsPostScriptName) {
    for (const QString& name :
         {u"Fraunces72pt-Light"_s, u"EBGaramond-Regular"_s, u"InterDisplay-Regular"_s,
          u"Nunito-Regular"_s, u"IBMPlexMono-Regular"_s, u"IBMPlexMono-Medium"_s}) {
        const auto font = shippedBook().named(name, 37.4);
        ASSERT_TRUE(font) << name.toStdString();
        EXPECT_EQ(font->size, 37.4);
        EXPECT_EQ(resolved(*font), name);
    }
    EXPECT_EQ(shippedBook().named(u"Fraunces"_s, 12), std::nullopt);
}

TEST(FontBook, SkipsOtherFilesAndBrokenFonts) {
    const QTemporaryDir folder;
    QFile::copy(shipped + "/Nunito-Regular.ttf"_L1, folder.filePath(u"A.TtF"_s));
    QFile::copy(shipped + "/EBGaramond-Regular.ttf"_L1, folder.filePath(u"b.txt"_s));
    QFile::copy(shipped + "/InterDisplay-Regular.otf"_L1, folder.filePath(u"c.OTF"_s));
    QFile broken(folder.filePath(u"d.ttf"_s));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("no font at all");
    broken.close();
    QFile half(folder.filePath(u"e.ttf"_s));
    QFile whole(shipped + "/IBMPlexMono-Regular.ttf"_L1);
    ASSERT_TRUE(half.open(QIODevice::WriteOnly) && whole.open(QIODevice::ReadOnly));
    half.write(whole.read(3000));
    half.close();

    FontBook book;
    book.registerBundledFonts(folder.path());
    EXPECT_TRUE(book.named(u"Nunito-Regular"_s, 10));
    EXPECT_TRUE(book.named(u"InterDisplay-Regular"_s, 10));
    EXPECT_FALSE(book.named(u"EBGaramond-Regular"_s, 10));
    EXPECT_FALSE(book.named(u"IBMPlexMono-Regular"_s, 10));
}

TEST(FontBook, IgnoresAMissingFolder) {
    FontBook book;
    book.registerBundledFonts(u"/nowhere/Fonts"_s);
    EXPECT_FALSE(book.named(u"Nunito-Regular"_s, 10));
}

TEST(FontBook, AnEmptyPathIsNotTheWorkingDirectory) {
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(shipped));
    FontBook book;
    book.registerBundledFonts(QString());
    QDir::setCurrent(before);
    EXPECT_FALSE(book.named(u"Nunito-Regular"_s, 10));
}

TEST(SystemFont, EachDesignHasItsShippedFace) {
    const FontBook& book = shippedBook();
    EXPECT_EQ(resolved(nsFont(book, 44, FontDesign::Serif)), u"EBGaramond-Regular"_s);
    EXPECT_EQ(resolved(nsFont(book, 44, FontDesign::Default)), u"InterDisplay-Regular"_s);
    EXPECT_EQ(resolved(nsFont(book, 44, FontDesign::Rounded)), u"Nunito-Regular"_s);
    EXPECT_EQ(resolved(nsFont(book, 44, FontDesign::Monospaced)), u"IBMPlexMono-Regular"_s);
    EXPECT_EQ(resolved(nsFont(book, 12, FontDesign::Monospaced, FontWeight::Medium)),
              u"IBMPlexMono-Medium"_s);
}

TEST(SystemFont, FallsBackOnAFaceOfTheSystem) {
    const FontBook nothing;
    for (const auto design :
         {FontDesign::Default, FontDesign::Serif, FontDesign::Rounded, FontDesign::Monospaced}) {
        const TextFont font = nsFont(nothing, 21.5, design);
        EXPECT_EQ(font.size, 21.5);
        EXPECT_TRUE(QRawFont::fromFont(font.face).isValid());
    }
    EXPECT_EQ(nsFont(nothing, 1, FontDesign::Serif).face.families().value(0), u"serif"_s);
    EXPECT_EQ(nsFont(nothing, 1, FontDesign::Monospaced).face.families().value(0), u"monospace"_s);
}

TEST(QuoteFont, NamesAreComparedExactly) {
    const FontBook& book = shippedBook();
    EXPECT_EQ(resolved(quoteFont(book, u"fraunces"_s, 44)), u"Fraunces72pt-Light"_s);
    EXPECT_EQ(resolved(quoteFont(book, u"sans"_s, 44)), u"InterDisplay-Regular"_s);
    EXPECT_EQ(resolved(quoteFont(book, u"rounded"_s, 44)), u"Nunito-Regular"_s);
    EXPECT_EQ(resolved(quoteFont(book, u"mono"_s, 44)), u"IBMPlexMono-Regular"_s);
    for (const QString& serif : {u"serif"_s, u"Fraunces"_s, u" serif"_s, u""_s, u"Sans"_s}) {
        EXPECT_EQ(resolved(quoteFont(book, serif, 44)), u"EBGaramond-Regular"_s)
            << serif.toStdString();
    }
}

TEST(QuoteFont, WithoutFrauncesItIsTheSerifDesign) {
    const QTemporaryDir folder;
    QFile::copy(shipped + "/EBGaramond-Regular.ttf"_L1, folder.filePath(u"g.ttf"_s));
    FontBook book;
    book.registerBundledFonts(folder.path());
    EXPECT_EQ(resolved(quoteFont(book, u"fraunces"_s, 44)), u"EBGaramond-Regular"_s);
    EXPECT_EQ(quoteFont(book, u"fraunces"_s, 37.4).size, 37.4);
}

} // namespace
