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

// Expects that `fresh` is acceptably like the picture on record; replaces that one when
// MORROWLEAF_RECORD is set. Skips the test where letters are drawn by another engine than
// on the machine of the record.
void expectGolden(const QString& file, const QImage& fresh);

} // namespace morrowleaf
