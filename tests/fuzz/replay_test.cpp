// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// Runs the corpus of one fuzzer, and changes of it, through its entry point in an
// ordinary build.

#include "tools/sourcepath.h"

#include <QDirIterator>
#include <QFile>

#include <gtest/gtest.h>

#include <cstdint>
#include <random>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

using namespace Qt::Literals::StringLiterals;

namespace {

void run(const QByteArray& input) {
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.constData()),
                           std::size_t(input.size()));
}

QByteArray changed(QByteArray input, const QByteArray& other, std::mt19937& random) {
    for (auto changes = random() % 4 + 1; changes > 0; --changes) {
        const auto at = qsizetype(random() % std::size_t(input.size() + 1));
        switch (random() % 5) {
        case 0:
            input.insert(at, char(random()));
            break;
        case 1:
            input.remove(at, qsizetype(random() % 4));
            break;
        case 2:
            input.insert(at, other.mid(qsizetype(random() % std::size_t(other.size() + 1)),
                                       qsizetype(random() % 12)));
            break;
        case 3:
            input.truncate(at);
            break;
        default:
            if (at < input.size()) {
                input[at] = char(input[at] ^ (1 << random() % 8));
            }
        }
    }
    return input;
}

TEST(FuzzReplay, TheCorpusAndChangesOfIt) {
    QList<QByteArray> corpus;
    QDirIterator files(morrowleaf::sourcePath(u"tests/fuzz/" FUZZER ""_s), QDir::Files);
    while (files.hasNext()) {
        QFile file(files.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        corpus.append(file.readAll());
        SCOPED_TRACE(file.fileName().toStdString());
        run(corpus.back());
    }
    ASSERT_GE(corpus.size(), 5);
    std::mt19937 random(20240229);
    for (int i = 0; i < CHANGED; ++i) {
        const auto pick = [&] { return corpus[qsizetype(random() % std::size_t(corpus.size()))]; };
        run(changed(pick(), pick(), random));
    }
}

} // namespace
