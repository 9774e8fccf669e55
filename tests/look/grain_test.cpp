// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "look/grain.h"

#include <QByteArrayView>
#include <QCryptographicHash>
#include <gtest/gtest.h>

#include <thread>
#include <vector>

using namespace morrowleaf;

namespace {

TEST(Grain, IsTheSameNoiseOnEveryRun) {
    const GrainBytes& bytes = grain();
    ASSERT_EQ(bytes.size(), 102400u);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
    EXPECT_EQ(hash.result().toHex(),
              QByteArray("9b7ae83234e956d024fc9bb16fbaf41554f06fd349e04973d2348306967afff6"));
}

TEST(Grain, ItsFirstPixelIsTheFirstStepFromTheSeed) {
    quint64 x = 0x9E3779B97F4A7C15;
    x ^= x << 13;
    x ^= x >> 7;
    x ^= x << 17;
    const auto grey = static_cast<quint8>((x >> 33) & 0xFF);
    EXPECT_EQ(grain()[0], grey);
    EXPECT_EQ(grain()[1], grey);
    EXPECT_EQ(grain()[2], grey);
    EXPECT_EQ(grain()[3], 0xFF);
}

TEST(Grain, IsBuiltOnceForEveryThread) {
    std::vector<const GrainBytes*> seen(8);
    std::vector<std::thread> threads;
    threads.reserve(seen.size());
    for (const GrainBytes*& place : seen) {
        threads.emplace_back([&place] { place = &grain(); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (const GrainBytes* bytes : seen) {
        EXPECT_EQ(bytes, &grain());
    }
}

} // namespace
