// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "look/animationkinds.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

using namespace Qt::StringLiterals;

TEST(AnimationKinds, TextNamesInOrder) {
    QStringList raws;
    QStringList labels;
    for (const TextAnim kind : allTextAnims) {
        raws.append(rawValue(kind));
        labels.append(label(kind));
        EXPECT_EQ(textAnimFromRawValue(rawValue(kind)), kind);
    }
    EXPECT_EQ(raws,
              (QStringList{u"fade"_s, u"handwrite"_s, u"typewriter"_s, u"rise"_s, u"blur"_s}));
    EXPECT_EQ(labels,
              (QStringList{u"Fade"_s, u"Handwrite"_s, u"Typewriter"_s, u"Rise"_s, u"Blur"_s}));
}

TEST(AnimationKinds, ScreenNamesInOrder) {
    QStringList raws;
    QStringList labels;
    for (const ScreenAnim kind : allScreenAnims) {
        raws.append(rawValue(kind));
        labels.append(label(kind));
        EXPECT_EQ(screenAnimFromRawValue(rawValue(kind)), kind);
    }
    EXPECT_EQ(raws, (QStringList{u"drift"_s, u"still"_s, u"breathe"_s, u"aurora"_s, u"zoom"_s}));
    EXPECT_EQ(labels, (QStringList{u"Drift"_s, u"Still"_s, u"Breathe"_s, u"Aurora"_s, u"Zoom"_s}));
}

TEST(AnimationKinds, UnknownNamesGiveNoKind) {
    for (const QString& raw :
         {QString(), u""_s, u"Handwrite"_s, u"fade "_s, u"drifting"_s, u"0"_s}) {
        EXPECT_FALSE(textAnimFromRawValue(raw)) << raw.toStdString();
        EXPECT_FALSE(screenAnimFromRawValue(raw)) << raw.toStdString();
    }
    EXPECT_FALSE(textAnimFromRawValue(u"drift"_s));
    EXPECT_FALSE(screenAnimFromRawValue(u"fade"_s));
}

TEST(AnimationKinds, AnUnknownStoredNameGivesTheFirstKind) {
    EXPECT_EQ(storedTextAnim(u"Handwrite"_s), TextAnim::Fade);
    EXPECT_EQ(storedTextAnim(u""_s), TextAnim::Fade);
    EXPECT_EQ(storedTextAnim(u"blur"_s), TextAnim::Blur);
    EXPECT_EQ(storedScreenAnim(u""_s), ScreenAnim::Drift);
    EXPECT_EQ(storedScreenAnim(u"STILL"_s), ScreenAnim::Drift);
    EXPECT_EQ(storedScreenAnim(u"still"_s), ScreenAnim::Still);
}

TEST(AnimationKinds, SpeedsAndAmplitudes) {
    EXPECT_EQ(speed(ScreenAnim::Drift), 0.11);
    EXPECT_EQ(speed(ScreenAnim::Still), 0.0);
    EXPECT_EQ(speed(ScreenAnim::Breathe), 0.06);
    EXPECT_EQ(speed(ScreenAnim::Aurora), 0.3);
    EXPECT_EQ(speed(ScreenAnim::Zoom), 0.08);
    EXPECT_EQ(amplitude(ScreenAnim::Drift), 0.16);
    EXPECT_EQ(amplitude(ScreenAnim::Still), 0.16);
    EXPECT_EQ(amplitude(ScreenAnim::Breathe), 0.1);
    EXPECT_EQ(amplitude(ScreenAnim::Aurora), 0.26);
    EXPECT_EQ(amplitude(ScreenAnim::Zoom), 0.16);
}

TEST(AnimationKinds, OnlyBreatheAndZoomScale) {
    for (const double phase : {0.0, 0.7, -3.0, 8.6e7}) {
        EXPECT_EQ(backdropScale(ScreenAnim::Drift, phase), 1);
        EXPECT_EQ(backdropScale(ScreenAnim::Still, phase), 1);
        EXPECT_EQ(backdropScale(ScreenAnim::Aurora, phase), 1);
    }
    constexpr double quarter = std::numbers::pi / 2;
    EXPECT_DOUBLE_EQ(backdropScale(ScreenAnim::Breathe, 0), 1.02);
    EXPECT_DOUBLE_EQ(backdropScale(ScreenAnim::Breathe, quarter / 3.0), 1.045);
    EXPECT_DOUBLE_EQ(backdropScale(ScreenAnim::Breathe, -quarter / 3.0), 0.995);
    EXPECT_DOUBLE_EQ(backdropScale(ScreenAnim::Zoom, 0), 1.06);
    EXPECT_DOUBLE_EQ(backdropScale(ScreenAnim::Zoom, quarter / 1.4), 1.12);
    EXPECT_DOUBLE_EQ(backdropScale(ScreenAnim::Zoom, -quarter / 1.4), 1.0);
}

} // namespace
