// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QString>

namespace morrowleaf {

// How far a picture is from the one on record. Both are compared in small blocks
// (colour) and pixel by pixel with their neighbourhood (shape).
struct PictureDifference {
    bool sameSize = true;
    // The largest difference of the mean of an 8 × 8 block, levels of 255.
    double worstBlock = 0;
    // Pixels outside the values around their place on record, per ten thousand.
    double strayPixels = 0;

    bool acceptable() const { return sameSize && worstBlock <= 6 && strayPixels <= 1; }
};
PictureDifference comparePictures(const QImage& recorded, const QImage& picture);

// A frame as it is recorded: with a device pixel ratio of 1, reduced by `factor`.
QImage forRecord(const QImage& frame, int factor);

// The picture on record; overwritten with `fresh` when MORROWLEAF_RECORD is set.
QImage goldenPicture(const QString& name, const QImage& fresh);

} // namespace morrowleaf
