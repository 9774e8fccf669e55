// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/readers.h"

#include "platform/readerside.h"

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

#include <csignal>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

// Readers that are shell scripts; $1 is the descriptor of the answer.
class ReadersTest : public testing::Test {
protected:
    QString script(const QByteArray& commands) {
        QFile file(folder.filePath(QString::number(++scripts)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/bash\ncd " + QFile::encodeName(folder.path()) + "\n" + commands + "\n");
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return file.fileName();
    }
    static ReaderWish wish(const QByteArray& request, std::chrono::milliseconds time = 30s) {
        return {.request = request, .answerSize = 8, .time = time};
    }
    // The answer, or "nothing".
    static QByteArray ask(const QString& program, const ReaderWish& wish) {
        Readers readers(program, 1);
        QByteArray result;
        QEventLoop loop;
        const Reading reading = readers.read(wish, [&](const AnswerBytes& bytes) {
            result = bytes ? bytes.view().toByteArray() : QByteArray("nothing");
            loop.quit();
        });
        loop.exec();
        return result;
    }
    QByteArray content(const QString& name) const {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static void run(std::chrono::milliseconds time) {
        QEventLoop loop;
        QTimer::singleShot(time, &loop, &QEventLoop::quit);
        loop.exec();
    }
    template <typename Condition>
    static bool await(Condition condition) {
        QElapsedTimer since;
        since.start();
        while (!condition() && since.elapsed() < 30'000) {
            run(10ms);
        }
        return condition();
    }
    bool isAlive(const QString& pidFile) const {
        return ::kill(content(pidFile).trimmed().toInt(), 0) == 0;
    }

    QTemporaryDir folder;
    int scripts = 0;
};

TEST_F(ReadersTest, PassTheRequestAndReturnTheAnswer) {
    const QString echo = script("head -c 8 >&$1");
    EXPECT_EQ(ask(echo, wish("12345678")), "12345678");
    EXPECT_EQ(ask(echo, wish("a\nb")), QByteArray("a\nb\n\0\0\0\0", 8));
    const QString count = script("wc -c | tr -d '\\n' >&$1");
    EXPECT_EQ(ask(count, wish(QByteArray(readerRequestLimit, 'x'))), QByteArray("1048577\0", 8));
    EXPECT_EQ(ask(count, wish(QByteArray(readerRequestLimit + 1, 'x'))), "nothing");
}

TEST_F(ReadersTest, AnswerNothingWhateverGoesWrong) {
    EXPECT_EQ(ask(folder.filePath(u"missing"_s), wish("x")), "nothing");
    const QString plain = script("");
    QFile::setPermissions(plain, QFile::ReadOwner);
    EXPECT_EQ(ask(plain, wish("x")), "nothing");
    for (const char* commands :
         {"exit 1", "kill -KILL $$", "kill -SEGV $$", "head -c 8 >&$1; exit 2"}) {
        EXPECT_EQ(ask(script(commands), wish("x")), "nothing") << commands;
    }
    QElapsedTimer clock;
    clock.start();
    for (const char* commands : {"exec sleep 60", "kill -STOP $$", "head -c 4 >&$1; exec sleep 60",
                                 "exec cat /dev/zero"}) {
        EXPECT_EQ(ask(script(commands), wish("x", 200ms)), "nothing") << commands;
    }
    EXPECT_LT(clock.elapsed(), 10'000);
}

TEST_F(ReadersTest, AFloodFillsTheAnswerAndNoMore) {
    EXPECT_EQ(ask(script("for i in {1..9}; do printf 12345678 >&$1; done; exit 0"), wish("x")),
              "12345678");
    EXPECT_EQ(
        ask(script("head -c 100000000 /dev/zero; head -c 100000000 /dev/zero >&2"), wish("x")),
        QByteArray(8, '\0'));
}

TEST_F(ReadersTest, AnAnswerThatCanStillBeWrittenIsNothing) {
    const QString holder =
        script("python3 -c 'import mmap, sys, time\n"
               "memory = mmap.mmap(int(sys.argv[1]), 8)\n"
               "open(\"mapped\", \"w\").close()\n"
               "time.sleep(5)' $1 & until [ -e mapped ]; do :; done; echo $! >holder; exit 0");
    EXPECT_EQ(ask(holder, wish("x")), "nothing");
    ::kill(content(u"holder"_s).trimmed().toInt(), SIGKILL);
}

TEST_F(ReadersTest, ADestroyedReadingKillsItsReader) {
    Readers readers(script("echo $$ >pid; exec sleep 60"), 1);
    Reading reading = readers.read(wish("x"), [](const AnswerBytes&) { FAIL(); });
    ASSERT_TRUE(await([&] { return content(u"pid"_s).endsWith('\n'); }));
    EXPECT_TRUE(isAlive(u"pid"_s));
    QElapsedTimer clock;
    clock.start();
    reading = {};
    EXPECT_LT(clock.elapsed(), 1000);
    EXPECT_TRUE(await([&] { return !isAlive(u"pid"_s); }));
}

TEST_F(ReadersTest, DestroyedReadersKillTheirOwn) {
    auto readers = std::make_unique<Readers>(script("echo $$ >pid; exec sleep 60"), 1);
    const auto fail = [](const AnswerBytes&) { FAIL(); };
    const Reading running = readers->read(wish("x"), fail);
    const Reading waiting = readers->read(wish("x", 300ms), fail);
    ASSERT_TRUE(await([&] { return content(u"pid"_s).endsWith('\n'); }));
    readers.reset();
    EXPECT_TRUE(await([&] { return !isAlive(u"pid"_s); }));
    run(400ms);
}

TEST_F(ReadersTest, DestroyedReadersAnswerNoMore) {
    auto readers = std::make_unique<Readers>(folder.filePath(u"missing"_s), 2);
    const auto fail = [](const AnswerBytes&) { FAIL(); };
    const Reading missing = readers->read(wish("x"), fail);
    const Reading tooLong = readers->read(wish(QByteArray(readerRequestLimit + 1, 'x')), fail);
    readers.reset();
    run(50ms);
}

TEST_F(ReadersTest, TheNewestOfThoseThatWaitIsNext) {
    const QString reader = script("cat >>log; until [ -e go ]; do sleep 0.02; done");
    for (const int atOnce : {2, 1}) {
        Readers readers(reader, atOnce);
        int answers = 0;
        std::vector<Reading> readings;
        for (const char* request : {"1", "2", "3", "4", "5", "6"}) {
            readings.push_back(readers.read(wish(request), [&](const AnswerBytes& bytes) {
                EXPECT_TRUE(bytes);
                ++answers;
            }));
        }
        ASSERT_TRUE(await([&] { return content(u"log"_s).size() >= 2 * atOnce; }));
        run(100ms);
        EXPECT_EQ(content(u"log"_s).size(), 2 * atOnce); // no more than these
        readings[4] = {};                                // leaves the queue
        QFile go(folder.filePath(u"go"_s));
        ASSERT_TRUE(go.open(QIODevice::WriteOnly));
        ASSERT_TRUE(await([&] { return answers == 5; }));
        const QByteArray order = content(u"log"_s).replace('\n', "");
        EXPECT_EQ(order.size(), 5);
        EXPECT_FALSE(order.contains('5'));
        if (atOnce == 1) {
            EXPECT_EQ(order, "16432");
        }
        go.remove();
        QFile::remove(folder.filePath(u"log"_s));
    }
}

TEST_F(ReadersTest, TheTimeOfAWishIncludesTheQueueIfItShall) {
    Readers readers(script("cat >>log; exec sleep 60"), 1);
    QByteArray order;
    const auto note = [&order](char name) {
        return [&order, name](const AnswerBytes& bytes) {
            EXPECT_FALSE(bytes);
            order += name;
        };
    };
    const Reading running = readers.read(wish("r", 600ms), note('r'));
    ReaderWish patient = wish("p", 300ms);
    patient.counted = ReaderWish::Counted::FromStart;
    const Reading late = readers.read(patient, note('p'));
    const Reading waiting = readers.read(wish("w", 300ms), note('w'));
    ASSERT_TRUE(await([&] { return order.size() == 3; }));
    EXPECT_EQ(order, "wrp");
    EXPECT_EQ(content(u"log"_s), "r\np\n"); // the one in between has never run
}

TEST_F(ReadersTest, ADoneMayDestroyEverything) {
    auto readers = std::make_unique<Readers>(script("exit 0"), 1);
    Reading reading;
    QEventLoop loop;
    reading = readers->read(wish("x"), [&](const AnswerBytes& bytes) {
        EXPECT_TRUE(bytes);
        reading = {};
        readers.reset();
        loop.quit();
    });
    loop.exec();
    EXPECT_FALSE(readers);
}

TEST_F(ReadersTest, TheAnswerOutlivesItsReaders) {
    AnswerBytes kept;
    {
        Readers readers(script("printf 12345678 >&$1"), 1);
        QEventLoop loop;
        const Reading reading = readers.read(wish("x"), [&](const AnswerBytes& bytes) {
            kept = bytes;
            loop.quit();
        });
        loop.exec();
    }
    EXPECT_EQ(kept.view().toByteArray(), "12345678");
}

TEST(AskApart, LeavesNothingOpen) {
    const auto openFiles = [] { return QDir(u"/proc/self/fd"_s).entryList().size(); };
    const auto before = openFiles();
    EXPECT_EQ(askApart([] {
                  QFile file(u"/dev/null"_s);
                  return QByteArray(file.open(QIODevice::ReadOnly) ? "a\nb" : "nothing");
              }),
              "a\nb");
    EXPECT_EQ(openFiles(), before);
}

TEST(AskApart, IsEmptyWhateverGoesWrong) {
    EXPECT_EQ(askApart([] {
                  ::raise(SIGKILL);
                  return QByteArray("a");
              }),
              "");
    EXPECT_EQ(askApart([] { return QByteArray(5000, 'a'); }), "");
    EXPECT_EQ(askApart([] { return QByteArray(); }), "");
}

} // namespace
