// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/resources.h"

#include <QFileInfo>
#include <gtest/gtest.h>

namespace morrowleaf {
namespace {

TEST(Resources, AreFoundInTheSourceTree) {
    EXPECT_TRUE(QFileInfo(fontFolder()).isDir());
    EXPECT_TRUE(QFileInfo(backgroundFolder()).isDir());
}

TEST(Resources, WithoutAFolderNothingIsLookedForElsewhere) {
    EXPECT_EQ(fontFolder(QString()), QString());
    EXPECT_EQ(backgroundFolder(QString()), QString());
}

} // namespace
} // namespace morrowleaf
