// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/commandline.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

namespace morrowleaf {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(CommandLine, SelfTestGoesBeforeTheLoginItem) {
    EXPECT_EQ(modeFor({u"morrowleaf"_s}), Mode::Desktop);
    EXPECT_EQ(modeFor({u"morrowleaf"_s, u"--settings"_s, u"-x"_s}), Mode::Desktop);
    EXPECT_EQ(modeFor({u"morrowleaf"_s, u"--register-login"_s, u"--selftest"_s}), Mode::SelfTest);
    EXPECT_EQ(modeFor({u"morrowleaf"_s, u"x"_s, u"--register-login"_s}), Mode::RegisterLogin);
    EXPECT_EQ(modeFor({u"--selftest"_s}), Mode::SelfTest);
}

TEST(CommandLine, ArgumentsAreMatchedWholeAndInTheirCase) {
    EXPECT_EQ(modeFor({u"morrowleaf"_s, u"--Selftest"_s, u"--selftest=1"_s, u"selftest"_s,
                       u"--register"_s, u"--HELP"_s, u"-h"_s, u"--version=1"_s}),
              Mode::Desktop);
}

TEST(CommandLine, HelpAndVersionGoBeforeTheDesktop) {
    EXPECT_EQ(modeFor({u"morrowleaf"_s, u"--settings"_s, u"--help"_s}), Mode::Help);
    EXPECT_EQ(modeFor({u"morrowleaf"_s, u"x"_s, u"--version"_s}), Mode::Version);
    EXPECT_EQ(modeFor({u"morrowleaf"_s, u"--version"_s, u"--help"_s}), Mode::Help);
    EXPECT_EQ(modeFor({u"morrowleaf"_s, u"--help"_s, u"--selftest"_s}), Mode::SelfTest);
    EXPECT_EQ(modeFor({u"--help"_s, u"--register-login"_s}), Mode::RegisterLogin);
}

TEST(CommandLine, HelpNamesEveryOption) {
    const QString help = helpText();
    EXPECT_TRUE(help.startsWith("Usage: morrowleaf [OPTION]\n"_L1)) << help.toStdString();
    for (const auto option :
         {"--settings"_L1, "--register-login"_L1, "--selftest"_L1, "--help"_L1, "--version"_L1}) {
        EXPECT_TRUE(help.contains("\n  "_L1 + option + u' ')) << option.data();
    }
    for (const QString& line : help.split(u'\n')) {
        EXPECT_LE(line.size(), 80) << line.toStdString();
    }
}

TEST(CommandLine, VersionIsANameAndNumbers) {
    EXPECT_TRUE(
        QRegularExpression(u"^Morrowleaf \\d+\\.\\d+\\.\\d+$"_s).match(versionText()).hasMatch())
        << versionText().toStdString();
}

} // namespace
} // namespace morrowleaf
