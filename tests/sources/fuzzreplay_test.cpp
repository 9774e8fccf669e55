// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// Runs the corpus and mutations of it through the fuzzer's entry point in an ordinary
// build.

#include "tools/sourcepath.h"

#include <QDirIterator>
#include <QFile>

#include <gtest/gtest.h>

#include <cstdint>
#include <random>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

using namespace Qt::Literals::StringLiterals;

namespace {

void run(const QByteArray& body) {
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(body.constData()),
                           std::size_t(body.size()));
}

QByteArray mutated(QByteArray body, const QByteArray& other, std::mt19937& random) {
    for (auto changes = random() % 4 + 1; changes > 0; --changes) {
        const auto at = qsizetype(random() % std::size_t(body.size() + 1));
        switch (random() % 5) {
        case 0:
            body.insert(at, char(random()));
            break;
        case 1:
            body.remove(at, qsizetype(random() % 4));
            break;
        case 2:
            body.insert(at, other.mid(qsizetype(random() % std::size_t(other.size() + 1)),
                                      qsizetype(random() % 12)));
            break;
        case 3:
            body.truncate(at);
            break;
        default:
            if (at < body.size()) {
                body[at] = char(body[at] ^ (1 << random() % 8));
            }
        }
    }
    return body;
}

TEST(FuzzReplay, TheCorpusAndItsMutations) {
    QList<QByteArray> corpus;
    QDirIterator files(morrowleaf::sourcePath(u"tests/sources/corpus"_s), QDir::Files);
    while (files.hasNext()) {
        QFile file(files.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        corpus.append(file.readAll());
        run(corpus.back());
    }
    ASSERT_GE(corpus.size(), 20);
    std::mt19937 random(20240229);
    for (int i = 0; i < 40000; ++i) {
        const auto pick = [&] { return corpus[qsizetype(random() % std::size_t(corpus.size()))]; };
        run(mutated(pick(), pick(), random));
    }
}

} // namespace
