// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/typewriter.h"

#include "textanim/letters.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace morrowleaf {

namespace {

class TypewriterPainter final : public LinePainter {
public:
    explicit TypewriterPainter(LateOutline text)
        : letters_(std::move(text)) {}

    LateOutline& text() override { return letters_.text(); }
    double duration() const override { return typingDuration(letters_.characterCount()); }
    bool looksSame(double one, double other) const override { return typed(one) == typed(other); }
    QRectF rect(double seconds) override {
        return typed(seconds) > 0 ? letters_.rect({}) : QRectF();
    }
    PlacedPicture draw(double seconds, double scale, const QColor& color) override {
        return letters_.drawBeginning(typed(seconds), scale, color);
    }
    void releaseMemory() override { letters_.releaseMemory(); }

private:
    qint64 typed(double seconds) const {
        return typedCharacters(seconds, letters_.characterCount());
    }

    Letters letters_;
};

} // namespace

qint64 typedCharacters(double seconds, qint64 length) {
    const double count = std::max(seconds, 0.0) * charsPerSecond;
    if (!std::isfinite(seconds) || count >= 0x1p63) {
        qFatal("A line cannot be typed for %g seconds.", seconds);
    }
    return std::min(static_cast<qint64>(count), length);
}

double typingDuration(qint64 length) {
    double seconds = static_cast<double>(std::max(length, qint64{0})) / charsPerSecond;
    while (typedCharacters(seconds, length) < length) {
        seconds = std::nextafter(seconds, std::numeric_limits<double>::infinity());
    }
    return seconds;
}

std::unique_ptr<LinePainter> typewriterPainter(LateOutline text) {
    return std::make_unique<TypewriterPainter>(std::move(text));
}

} // namespace morrowleaf
