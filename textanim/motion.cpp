#include "textanim/motion.h"

#include "base/curves.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace morrowleaf {

namespace {

constexpr double fadeDuration = 1.15;
constexpr double blurDuration = 1.4;
constexpr double traceDuration = 1.25;
constexpr double inkStart = 0.7 * traceDuration;
constexpr double inkDuration = 0.45 * traceDuration;
constexpr double riseResponse = 0.9;
constexpr double riseDamping = 0.72;

double between(double before, double after, double progress) {
    return before + (after - before) * progress;
}

RevealValues risen(double sinceStart) {
    const double progress = sinceStart >= revealDuration(TextAnim::Rise)
                                ? 1
                                : spring(sinceStart, riseResponse, riseDamping);
    RevealValues values;
    values.opacity = std::clamp(progress, 0.0, 1.0);
    values.offset = between(46, 0, progress);
    return values;
}

} // namespace

double revealDuration(TextAnim style) {
    switch (style) {
    case TextAnim::Fade:
        return fadeDuration;
    case TextAnim::Blur:
        return blurDuration;
    case TextAnim::Handwrite:
        return inkStart + inkDuration;
    case TextAnim::Rise: {
        static const double settled = springSettledAfter(riseResponse, riseDamping);
        return settled;
    }
    case TextAnim::Typewriter:
        break;
    }
    return 0;
}

RevealValues revealValues(TextAnim style, double sinceStart) {
    const double since = sinceStart > 0 ? sinceStart : 0;
    RevealValues values;
    switch (style) {
    case TextAnim::Fade: {
        const double progress = easeOut(since / fadeDuration);
        values.opacity = progress;
        values.blurRadius = between(9, 0, progress);
        values.offset = between(22, 0, progress);
        break;
    }
    case TextAnim::Blur: {
        const double progress = easeOut(since / blurDuration);
        values.opacity = progress;
        values.blurRadius = between(26, 0, progress);
        values.scale = between(1.06, 1, progress);
        break;
    }
    case TextAnim::Handwrite:
        values.traced = easeInEaseOut(since / traceDuration);
        values.ink = std::clamp((since - inkStart) / inkDuration, 0.0, 1.0);
        break;
    case TextAnim::Rise:
        return risen(since);
    case TextAnim::Typewriter:
        break;
    }
    return values;
}

qint64 typedCharacters(double sinceStart, qint64 length) {
    const double count = std::max(sinceStart, 0.0) * charsPerSecond;
    if (!std::isfinite(sinceStart) || count >= 0x1p63) {
        qFatal("A line cannot be typed for %g seconds.", sinceStart);
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

} // namespace morrowleaf
