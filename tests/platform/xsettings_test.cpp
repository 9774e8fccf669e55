// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/x11/xsettings.h"

#include <gtest/gtest.h>

namespace morrowleaf {
namespace {

// A text, a colour and two integers, as a server in that order of bytes writes them.
const QByteArray little("\0\0\0\0"
                        "\7\0\0\0"
                        "\4\0\0\0"
                        "\1\0\15\0"
                        "Net/ThemeName\0\0\0"
                        "\1\0\0\0"
                        "\5\0\0\0"
                        "Adwai\0\0\0"
                        "\2\0\3\0"
                        "C/d\0"
                        "\1\0\0\0"
                        "\1\2\3\4\5\6\7\10"
                        "\0\0\24\0"
                        "Gtk/EnableAnimations"
                        "\2\0\0\0"
                        "\0\0\0\0"
                        "\0\0\7\0"
                        "Xft/DPI\0"
                        "\3\0\0\0"
                        "\0\200\1\0",
                        120);
const QByteArray big("\1\0\0\0"
                     "\0\0\0\7"
                     "\0\0\0\1"
                     "\0\0\0\7"
                     "Xft/DPI\0"
                     "\0\0\0\3"
                     "\0\1\200\0",
                     32);

TEST(XSettings, GiveTheirIntegers) {
    const QMap<QByteArray, int> expected{{"Gtk/EnableAnimations", 0}, {"Xft/DPI", 98304}};
    EXPECT_EQ(integersInXSettings(little), expected);
    EXPECT_EQ(integersInXSettings(big), (QMap<QByteArray, int>{{"Xft/DPI", 98304}}));
}

TEST(XSettings, GiveNothingWhereTheyAreCutOff) {
    for (qsizetype length = 0; length < little.size(); ++length) {
        EXPECT_TRUE(integersInXSettings(little.left(length)).isEmpty()) << length;
    }
}

TEST(XSettings, GiveNothingOfAnUnknownType) {
    QByteArray strange = little;
    strange[12] = '\11';
    EXPECT_TRUE(integersInXSettings(strange).isEmpty());
}

} // namespace
} // namespace morrowleaf
