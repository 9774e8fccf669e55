// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/resources.h"

#include <QFileInfo>
#include <QStringList>
#include <gtest/gtest.h>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(Resources, AreFoundInTheSourceTree) {
    EXPECT_TRUE(QFileInfo(fontFolder()).isDir());
    EXPECT_TRUE(QFileInfo(backgroundFolder()).isDir());
}

TEST(Resources, AreNeverLookedForInTheRootFolder) {
    EXPECT_EQ(placesOfResources(u"/usr/bin"_s),
              QStringList({u"/usr/share/morrowleaf"_s, u"/usr/resources"_s}));
    EXPECT_EQ(placesOfResources(u"/a/b/c/d/e/f/g"_s),
              QStringList({u"/a/b/c/d/e/f/share/morrowleaf"_s, u"/a/b/c/d/e/f/resources"_s,
                           u"/a/b/c/d/e/resources"_s, u"/a/b/c/d/resources"_s,
                           u"/a/b/c/resources"_s, u"/a/b/resources"_s}));
}

TEST(Resources, AreInTheBundleOfAProgram) {
    EXPECT_EQ(placesOfResources(u"/Applications/Morrowleaf.app/Contents/MacOS"_s).value(0),
              u"/Applications/Morrowleaf.app/Contents/Resources"_s);
}

TEST(Resources, WithoutAFolderNothingIsLookedForElsewhere) {
    EXPECT_EQ(fontFolder(QString()), QString());
    EXPECT_EQ(backgroundFolder(QString()), QString());
}

} // namespace
} // namespace morrowleaf
