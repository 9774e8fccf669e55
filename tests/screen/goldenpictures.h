// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QString>

namespace morrowleaf {

// How far a picture is from the one on record. Both are compared in small
// blocks (colour) and pixel by pixel against their neighbourhood (shape).
struct PictureDifference {
    bool sameSize = true;
    // The largest difference of the mean of an 8 × 8 block, levels of 255.
    double worstBlock = 0;
    // Pixels unlike every pixel around their place on record, in ten thousand.
    double strayPixels = 0;

    bool acceptable() const { return sameSize && worstBlock <= 6 && strayPixels <= 1; }
};
PictureDifference comparePictures(const QImage& recorded, const QImage& picture);

// A frame as it is put on record: without its device pixel ratio, `factor`
// times smaller.
QImage forRecord(const QImage& frame, int factor);

// The picture on record; written anew when MORROWLEAF_RECORD is set.
QImage goldenPicture(const QString& name, const QImage& fresh);

} // namespace morrowleaf
