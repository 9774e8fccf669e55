// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "photos/photo.h"
#include "photos/photoimport.h"
#include "photos/photoreaders.h"
#include "photos/photorequest.h"
#include "tools/sourcepath.h"

#include <QBuffer>
#include <QColorSpace>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>
#include <QTemporaryDir>
#include <QtEndian>
#include <gtest/gtest.h>

#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

// The left half is red and the right half blue; the top left quarter is green.
QImage quarters(QSize size, QImage::Format format = QImage::Format_RGB32) {
    QImage image(size, format);
    image.fill(Qt::red);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const bool left = x < size.width() / 2;
            const bool top = y < size.height() / 2;
            image.setPixelColor(x, y, left && top ? Qt::green : left ? Qt::red : Qt::blue);
        }
    }
    return image;
}

bool isNear(QColor a, QColor b, int tolerance) {
    return std::abs(a.red() - b.red()) <= tolerance &&
           std::abs(a.green() - b.green()) <= tolerance &&
           std::abs(a.blue() - b.blue()) <= tolerance;
}

QByteArray encoded(const QImage& image, const char* format, int quality = 95,
                   bool progressive = false) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setQuality(quality);
    writer.setProgressiveScanWrite(progressive);
    EXPECT_TRUE(writer.write(image));
    return buffer.data();
}

// A JPEG whose EXIF data rotate it.
QByteArray turned(const QByteArray& jpeg, char orientation) {
    QByteArray exif = QByteArray::fromHex("ffe10022457869660000"
                                          "4d4d002a00000008"
                                          "0001"
                                          "011200030000000100000000"
                                          "00000000");
    exif[exif.size() - 7] = orientation;
    return jpeg.left(2) + exif + jpeg.mid(2);
}

void setBigEndian(QByteArray& bytes, qsizetype at, quint32 value, int count) {
    for (int i = 0; i < count; ++i) {
        bytes[at + i] = char(value >> (8 * (count - 1 - i)));
    }
}

class PhotoTest : public ::testing::Test {
protected:
    QString file(const QByteArray& content) {
        QString path = folder.filePath(QString::number(++count));
        QFile out(path);
        EXPECT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(content);
        return path;
    }
    QImage decode(const QString& path, QSize target) {
        QImage result;
        QEventLoop loop;
        const Reading reading = readers->decode(path, target, [&](const QImage& image) {
            result = image;
            loop.quit();
        });
        loop.exec();
        return result;
    }
    QSize inspect(const QString& path) {
        QSize result;
        QEventLoop loop;
        const Reading reading = readers->inspect(path, [&](const QSize& size) {
            result = size;
            loop.quit();
        });
        loop.exec();
        return result;
    }
    QImage filling(const QByteArray& content, QSize target) {
        return decode(file(content), target);
    }

    QTemporaryDir folder;
    int count = 0;
    std::optional<PhotoReaders> readers{std::in_place};
};

TEST_F(PhotoTest, IsNothingIfItsReaderAnswersNonsense) {
    const auto answer = [this](const QByteArray& commands) {
        const QString script = file("#!/bin/sh\n" + commands);
        QFile::setPermissions(script, QFile::ReadOwner | QFile::ExeOwner);
        readers.emplace(script);
        return decode(file({}), {2, 2});
    };
    EXPECT_EQ(answer("printf '%16s' '' | tr ' ' '\\377' >&$1").pixel(1, 1), 0xffffffff);
    EXPECT_TRUE(answer("printf '%15s' '' | tr ' ' '\\377' >&$1").isNull()); // one is transparent
    EXPECT_TRUE(answer("exit 1").isNull());
}

TEST_F(PhotoTest, FillsTheTargetCroppedAboutTheCentre) {
    const QImage wide = filling(encoded(quarters({400, 100}), "png"), {50, 50});
    ASSERT_EQ(wide.size(), QSize(50, 50));
    EXPECT_EQ(wide.format(), QImage::Format_RGB32);
    EXPECT_EQ(wide.pixelColor(5, 5), QColor(Qt::green));
    EXPECT_EQ(wide.pixelColor(5, 45), QColor(Qt::red));
    EXPECT_EQ(wide.pixelColor(45, 5), QColor(Qt::blue));
    const QImage tall = filling(encoded(quarters({100, 400}), "jpg"), {60, 20});
    ASSERT_EQ(tall.size(), QSize(60, 20));
    EXPECT_TRUE(isNear(tall.pixelColor(5, 2), Qt::green, 20));
    EXPECT_TRUE(isNear(tall.pixelColor(5, 17), Qt::red, 20));
}

TEST_F(PhotoTest, EnlargesASmallPicture) {
    const QImage image = filling(encoded(quarters({4, 4}), "png"), {64, 64});
    ASSERT_EQ(image.size(), QSize(64, 64));
    EXPECT_EQ(image.pixelColor(2, 2), QColor(Qt::green));
}

TEST_F(PhotoTest, DecodesExtremeAspectRatios) {
    const QImage strip = filling(encoded(quarters({20'000, 2}), "png"), {1920, 1080});
    EXPECT_EQ(strip.size(), QSize(1920, 1080));
    const QImage needle = filling(encoded(quarters({2, 20'000}), "jpg"), {1920, 1080});
    EXPECT_EQ(needle.size(), QSize(1920, 1080));
}

// The orientations of EXIF, with the position of the stored top left quarter.
TEST_F(PhotoTest, HonoursTheOrientation) {
    const QByteArray jpeg = encoded(quarters({80, 40}), "jpg");
    const QRect ends[] = {{0, 0, 1, 1}, {1, 0, 1, 1}, {1, 1, 1, 1}, {0, 1, 1, 1},
                          {0, 0, 1, 1}, {1, 0, 1, 1}, {1, 1, 1, 1}, {0, 1, 1, 1}};
    for (int orientation = 1; orientation <= 8; ++orientation) {
        const QByteArray content = turned(jpeg, char(orientation));
        const QString path = file(content);
        const QSize upright = orientation >= 5 ? QSize(40, 80) : QSize(80, 40);
        EXPECT_EQ(inspect(path), upright);
        const QImage image = decode(path, upright);
        ASSERT_EQ(image.size(), upright);
        const QPoint corner = ends[orientation - 1].topLeft();
        const QPoint at(corner.x() ? upright.width() - 6 : 5,
                        corner.y() ? upright.height() - 6 : 5);
        EXPECT_TRUE(isNear(image.pixelColor(at), Qt::green, 30))
            << orientation << " " << image.pixelColor(at).name().toStdString();
    }
}

TEST_F(PhotoTest, ConvertsAWideGamutToSrgb) {
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(QColor(200, 100, 50));
    image.setColorSpace(QColorSpace::DisplayP3);
    const QImage shown = filling(encoded(image, "png"), {16, 16});
    ASSERT_FALSE(shown.isNull());
    QImage expected = image;
    expected.convertToColorSpace(QColorSpace::SRgb);
    EXPECT_TRUE(isNear(shown.pixelColor(8, 8), expected.pixelColor(8, 8), 1));
    EXPECT_FALSE(isNear(shown.pixelColor(8, 8), QColor(200, 100, 50), 4));
}

TEST_F(PhotoTest, ReadsGreyDeepAndPalettePictures) {
    QImage grey(16, 16, QImage::Format_Grayscale8);
    grey.fill(QColor(90, 90, 90));
    EXPECT_TRUE(
        isNear(filling(encoded(grey, "png"), {8, 8}).pixelColor(4, 4), QColor(90, 90, 90), 1));
    EXPECT_TRUE(
        isNear(filling(encoded(grey, "jpg"), {8, 8}).pixelColor(4, 4), QColor(90, 90, 90), 2));
    QImage deep(16, 16, QImage::Format_RGBX64);
    deep.fill(QColor::fromRgba64(0x8000, 0x4000, 0xC000));
    EXPECT_TRUE(isNear(filling(encoded(deep, "png"), {8, 8}).pixelColor(4, 4),
                       QColor(0x80, 0x40, 0xC0), 1));
    QImage grey16(16, 16, QImage::Format_Grayscale16);
    grey16.fill(QColor(120, 120, 120));
    EXPECT_TRUE(
        isNear(filling(encoded(grey16, "png"), {8, 8}).pixelColor(4, 4), QColor(120, 120, 120), 1));
    const QImage few = quarters({16, 16}).convertToFormat(QImage::Format_Indexed8);
    EXPECT_EQ(filling(encoded(few, "png"), {16, 16}).pixelColor(1, 1), QColor(Qt::green));
}

TEST_F(PhotoTest, ReadsPicturesMadeForPrinting) {
    const QImage shown = decode(sourcePath(u"tests/photos/data/cmyk.jpg"_s), {16, 16});
    ASSERT_FALSE(shown.isNull());
    EXPECT_TRUE(isNear(shown.pixelColor(8, 8), QColor(200, 60, 40), 12))
        << shown.pixelColor(8, 8).name().toStdString();
}

TEST_F(PhotoTest, DrawsTransparentPixelsOverBlack) {
    QImage image(16, 16, QImage::Format_ARGB32);
    image.fill(QColor(200, 100, 0, 128));
    const QImage shown = filling(encoded(image, "png"), {16, 16});
    ASSERT_EQ(shown.format(), QImage::Format_RGB32);
    EXPECT_TRUE(isNear(shown.pixelColor(3, 3), QColor(100, 50, 0), 2));
}

TEST_F(PhotoTest, ReadsWebpIfThePluginIsInstalled) {
    if (!QImageReader::supportedImageFormats().contains("webp")) {
        GTEST_SKIP() << "no reader for WebP";
    }
    const QImage shown = filling(encoded(quarters({64, 64}), "webp", 100), {32, 32});
    ASSERT_EQ(shown.size(), QSize(32, 32));
    EXPECT_TRUE(isNear(shown.pixelColor(4, 4), Qt::green, 12));
}

TEST_F(PhotoTest, ReadsJpegsWithSeveralScans) {
    const QImage shown = filling(encoded(quarters({64, 64}), "jpg", 95, true), {32, 32});
    ASSERT_EQ(shown.size(), QSize(32, 32));
    EXPECT_TRUE(isNear(shown.pixelColor(4, 4), Qt::green, 12));
}

TEST_F(PhotoTest, ThePixelsAreThoseOfTheDecoder) {
    const QStringList shipped = QDir(sourcePath(u"resources/Backgrounds"_s)).entryList(QDir::Files);
    ASSERT_FALSE(shipped.isEmpty());
    for (const QString& name : shipped) {
        const QString path = sourcePath(u"resources/Backgrounds/"_s + name);
        QFile whole(path);
        ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
        const QImage expected = decodePhoto(whole, {640, 400});
        ASSERT_FALSE(expected.isNull());
        EXPECT_EQ(decode(path, {640, 400}), expected) << name.toStdString();
    }
}

TEST_F(PhotoTest, AskingHasAnyPath) {
    const QString path = folder.filePath(u" two \n lines 1 2 .png"_s);
    ASSERT_TRUE(quarters({8, 6}).save(path));
    EXPECT_EQ(inspect(path), QSize(8, 6));
    for (const char* odd : {"", " ", "1", "1 2", "1 x y", "-1 -1 /", "9999999999 1 /"}) {
        const auto request = parsePhotoRequest(odd);
        EXPECT_TRUE(!request || request->size.width() < 2) << odd;
    }
}

TEST_F(PhotoTest, IsNullWithoutTheReader) {
    readers.emplace(folder.filePath(u"missing"_s));
    EXPECT_TRUE(filling(encoded(quarters({8, 8}), "png"), {8, 8}).isNull());
    EXPECT_TRUE(inspect(file(encoded(quarters({8, 8}), "png"))).isEmpty());
}

// A picture whose header claims more pixels than the file has.
QByteArray pngClaiming(QSize size) {
    QByteArray png = encoded(quarters({8, 8}), "png");
    setBigEndian(png, 16, quint32(size.width()), 4);
    setBigEndian(png, 20, quint32(size.height()), 4);
    return png; // the checksum is wrong too, but readers of the size ignore it
}

[[maybe_unused]] QByteArray jpegClaiming(QSize size, bool progressive) {
    QByteArray jpeg = encoded(quarters({8, 8}), "jpg", 90, progressive);
    const qsizetype frame = jpeg.indexOf(progressive ? "\xff\xc2" : "\xff\xc0");
    setBigEndian(jpeg, frame + 5, quint32(size.height()), 2);
    setBigEndian(jpeg, frame + 7, quint32(size.width()), 2);
    return jpeg;
}

// The header of a BMP can hold sizes whose product overflows.
QByteArray bmpClaiming(quint32 side) {
    QByteArray bmp = encoded(quarters({8, 8}), "bmp");
    qToLittleEndian(side, bmp.data() + 18);
    qToLittleEndian(side, bmp.data() + 22);
    return bmp;
}

TEST_F(PhotoTest, RefusesDecompressionBombs) {
    EXPECT_FALSE(filling(bmpClaiming(8), {8, 8}).isNull());
    EXPECT_TRUE(filling(bmpClaiming(30'000), {8, 8}).isNull());
    EXPECT_TRUE(filling(bmpClaiming(0x7FFFFFFF), {8, 8}).isNull());
    EXPECT_TRUE(filling(pngClaiming({30'000, 30'000}), {8, 8}).isNull());
#if !defined(__SANITIZE_ADDRESS__) // only the limit of memory refuses this one
    EXPECT_TRUE(filling(jpegClaiming({65'000, 65'000}, true), {8, 8}).isNull());
#endif
}

TEST_F(PhotoTest, AcceptsALargePhotoThatCanBeDecodedSmaller) {
    // 48 megapixels, more than Qt's default limit allows.
    const QByteArray large = encoded(QImage(8000, 6000, QImage::Format_Grayscale8), "jpg", 50);
    EXPECT_EQ(filling(large, {192, 108}).size(), QSize(192, 108));
}

TEST_F(PhotoTest, IsNullForInvalidFilesAndSizes) {
    for (const QByteArray& content :
         {QByteArray(), QByteArray("GIF89a"), QByteArray(100'000, '\xff')}) {
        EXPECT_TRUE(inspect(file(content)).isEmpty());
        EXPECT_TRUE(filling(content, {8, 8}).isNull());
    }
    EXPECT_TRUE(inspect(u"/nowhere"_s).isEmpty());
    const QString path = file(encoded(quarters({8, 8}), "png"));
    EXPECT_EQ(inspect(path), QSize(8, 8));
    for (const QSize size : {QSize(0, 10), QSize(-5, 10), QSize(-5, -5), QSize(1 << 30, 1 << 30)}) {
        EXPECT_TRUE(decode(path, size).isNull());
    }
    EXPECT_FALSE(decode(path, {10, 10}).isNull());
    EXPECT_TRUE(QFile::remove(path));
    EXPECT_TRUE(decode(path, {10, 10}).isNull());
}

TEST_F(PhotoTest, CropsFillTheTargetsShape) {
    EXPECT_EQ(fillingCrop({400, 100}, {50, 50}), QRect(150, 0, 100, 100));
    EXPECT_EQ(fillingCrop({100, 400}, {50, 50}), QRect(0, 150, 100, 100));
    EXPECT_EQ(fillingCrop({1, 1000}, {1920, 1080}), QRect(0, 499, 1, 1));
}

TEST_F(PhotoTest, DoesNotCopyOverAFileOrWhenCancelled) {
    const StopToken going;
    StopSource stopped;
    stopped.request();
    const QString source = file("content");
    const QString taken = file("taken");
    EXPECT_FALSE(copyPhotoFile(source, taken, going));
    QFile there(taken);
    ASSERT_TRUE(there.open(QIODevice::ReadOnly));
    EXPECT_EQ(there.readAll(), QByteArray("taken"));
    const QString fresh = folder.filePath(u"fresh"_s);
    EXPECT_FALSE(copyPhotoFile(source, fresh, stopped.token()));
    EXPECT_FALSE(QFile::exists(fresh));
    EXPECT_TRUE(copyPhotoFile(source, fresh, going));
}

TEST_F(PhotoTest, LeavesNoFileOnAFullDisk) {
#ifndef __linux__
    GTEST_SKIP() << "a small disk is mounted on Linux only";
#else
    const QString small = folder.filePath(u"small"_s);
    ASSERT_TRUE(QDir().mkpath(small));
    if (::mount("none", qPrintable(small), "tmpfs", 0, "size=64k") != 0) {
        GTEST_SKIP() << "may not mount a small disk here";
    }
    const StopToken going;
    const bool copied = copyPhotoFile(file(QByteArray(1 << 20, 'x')), small + u"/copy"_s, going);
    const QStringList left = QDir(small).entryList(QDir::Files | QDir::Hidden);
    ::umount(qPrintable(small));
    EXPECT_FALSE(copied);
    EXPECT_EQ(left, QStringList());
#endif
}

} // namespace
} // namespace morrowleaf
