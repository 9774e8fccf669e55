// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/fonts.h"
#include "tools/sourcepath.h"

#include <QFile>
#include <QRawFont>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cmath>

using namespace morrowleaf;

namespace {

const QString shipped = sourcePath("resources/Fonts");

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
    for (const char* name : {"Fraunces72pt-Light", "EBGaramond-Regular", "InterDisplay-Regular",
                             "Nunito-Regular", "IBMPlexMono-Regular", "IBMPlexMono-Medium"}) {
        const auto font = shippedBook().named(name, 37.4);
        ASSERT_TRUE(font) << name;
        EXPECT_EQ(font->size, 37.4);
        EXPECT_EQ(resolved(*font), name);
    }
    EXPECT_EQ(shippedBook().named("Fraunces", 12), std::nullopt);
}

TEST(FontBook, TakesFontFilesOnlyAndPassesOverBrokenOnes) {
    const QTemporaryDir folder;
    QFile::copy(shipped + "/Nunito-Regular.ttf", folder.filePath("A.TtF"));
    QFile::copy(shipped + "/EBGaramond-Regular.ttf", folder.filePath("b.txt"));
    QFile::copy(shipped + "/InterDisplay-Regular.otf", folder.filePath("c.OTF"));
    QFile broken(folder.filePath("d.ttf"));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("no font at all");
    broken.close();
    QFile half(folder.filePath("e.ttf"));
    QFile whole(shipped + "/IBMPlexMono-Regular.ttf");
    ASSERT_TRUE(half.open(QIODevice::WriteOnly) && whole.open(QIODevice::ReadOnly));
    half.write(whole.read(3000));
    half.close();

    FontBook book;
    book.registerBundledFonts(folder.path());
    EXPECT_TRUE(book.named("Nunito-Regular", 10));
    EXPECT_TRUE(book.named("InterDisplay-Regular", 10));
    EXPECT_FALSE(book.named("EBGaramond-Regular", 10));
    EXPECT_FALSE(book.named("IBMPlexMono-Regular", 10));
}

TEST(FontBook, AMissingFolderIsPassedOver) {
    FontBook book;
    book.registerBundledFonts("/nowhere/Fonts");
    EXPECT_FALSE(book.named("Nunito-Regular", 10));
}

TEST(SystemFont, EachDesignHasItsShippedFace) {
    const FontBook& book = shippedBook();
    EXPECT_EQ(resolved(nsFont(book, 44, FontDesign::Serif)), "EBGaramond-Regular");
    EXPECT_EQ(resolved(nsFont(book, 44, FontDesign::Default)), "InterDisplay-Regular");
    EXPECT_EQ(resolved(nsFont(book, 44, FontDesign::Rounded)), "Nunito-Regular");
    EXPECT_EQ(resolved(nsFont(book, 44, FontDesign::Monospaced)), "IBMPlexMono-Regular");
    EXPECT_EQ(resolved(nsFont(book, 12, FontDesign::Monospaced, FontWeight::Medium)),
              "IBMPlexMono-Medium");
}

TEST(SystemFont, WithoutShippedFacesTheSystemHasOne) {
    const FontBook nothing;
    for (const auto design :
         {FontDesign::Default, FontDesign::Serif, FontDesign::Rounded, FontDesign::Monospaced}) {
        const TextFont font = nsFont(nothing, 21.5, design);
        EXPECT_EQ(font.size, 21.5);
        EXPECT_TRUE(QRawFont::fromFont(font.face).isValid());
    }
    EXPECT_EQ(nsFont(nothing, 1, FontDesign::Serif).face.families().value(0), "serif");
    EXPECT_EQ(nsFont(nothing, 1, FontDesign::Monospaced).face.families().value(0), "monospace");
}

TEST(QuoteFont, NamesAreComparedExactly) {
    const FontBook& book = shippedBook();
    EXPECT_EQ(resolved(quoteFont(book, "fraunces", 44)), "Fraunces72pt-Light");
    EXPECT_EQ(resolved(quoteFont(book, "sans", 44)), "InterDisplay-Regular");
    EXPECT_EQ(resolved(quoteFont(book, "rounded", 44)), "Nunito-Regular");
    EXPECT_EQ(resolved(quoteFont(book, "mono", 44)), "IBMPlexMono-Regular");
    for (const char* serif : {"serif", "Fraunces", " serif", "", "Sans"}) {
        EXPECT_EQ(resolved(quoteFont(book, serif, 44)), "EBGaramond-Regular") << serif;
    }
}

TEST(QuoteFont, AMissingFrauncesIsTheSerifDesign) {
    const QTemporaryDir folder;
    QFile::copy(shipped + "/EBGaramond-Regular.ttf", folder.filePath("g.ttf"));
    FontBook book;
    book.registerBundledFonts(folder.path());
    EXPECT_EQ(resolved(quoteFont(book, "fraunces", 44)), "EBGaramond-Regular");
    EXPECT_EQ(quoteFont(book, "fraunces", 37.4).size, 37.4);
}

} // namespace
