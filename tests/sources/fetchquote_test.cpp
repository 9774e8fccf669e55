// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/files.h"
#include "sources/fetchquote.h"
#include "sources/quoteanswer.h"
#include "sources/sourcebytes.h"
#include "sources/sourcepresets.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

TEST(SourceAddress, RejectsIncompleteAndOtherAddresses) {
    for (const char* source : {"",
                               " \t\n",
                               "example.org",
                               "example.org/q.json",
                               "http:",
                               "http://",
                               "http:example.org",
                               "https:///q",
                               "ftp://example.org/",
                               "q.json",
                               "~/q.json",
                               "file:q.json",
                               "file://elsewhere/q",
                               "about:blank",
                               "javascript:1",
                               "qrc:/x",
                               "http://a:99999/",
                               "http://[::1/",
                               "file:///a%00b",
                               "://",
                               "C:\\q"}) {
        EXPECT_FALSE(sourceAddress(QString::fromUtf8(source))) << source;
    }
}

TEST(SourceAddress, KeepsPathsUnchanged) {
    EXPECT_EQ(sourceAddress(u" /a b#c?d%20e "_s)->path, "/a b#c?d%20e"_L1);
    EXPECT_EQ(sourceAddress(u"//example.org/x"_s)->path, "//example.org/x"_L1);
    EXPECT_EQ(sourceAddress(u"file:///a%20b"_s)->path, "/a b"_L1);
    EXPECT_EQ(sourceAddress(u"FILE://localhost/a"_s)->path, "/a"_L1);
    EXPECT_EQ(sourceAddress(u" HTTPS://Example.org/Q "_s)->url, QUrl(u"https://example.org/Q"_s));
    EXPECT_EQ(sourceAddress(u"data:,x"_s)->url.scheme(), "data"_L1);
}

TEST(DataAddress, HoldsItsContent) {
    const auto data = [](const char* address) {
        return dataOf(QUrl(QString::fromUtf8(address))).value_or("nothing");
    };
    EXPECT_EQ(data("data:,a%20b?c#d"), "a b?c#d");
    EXPECT_EQ(data("data:text/plain;base64,YSBi"), "a b");
    EXPECT_EQ(data("data:;base64,YSBi!"), "nothing");
    EXPECT_EQ(data("data:text/plain"), "nothing");
}

TEST(Unpack, RefusesWhatIsBrokenCutOrTooLong) {
    const QByteArray plain(1000, 'a');
    const QByteArray framed = qCompress(plain).sliced(4); // without Qt's own header
    const QByteArray bare = framed.sliced(2).chopped(4);
    const auto unpacked = [](const QByteArray& body, const char* encoding, qsizetype limit) {
        return unpack(body, encoding, limit).value_or("nothing");
    };
    EXPECT_EQ(unpacked(plain, "", 1000), plain);
    EXPECT_EQ(unpacked(plain, "Identity", 1000), plain);
    EXPECT_EQ(unpacked(plain, "", 999), "nothing");
    EXPECT_EQ(unpacked(framed, "deflate", 1000), plain);
    EXPECT_EQ(unpacked(bare, " Deflate ", 1000), plain);
    EXPECT_EQ(unpacked(framed, "deflate", 999), "nothing");
    EXPECT_EQ(unpacked(plain, "br", 1000), "nothing");
    EXPECT_EQ(unpacked({}, "gzip", 1000), "nothing");
    for (qsizetype cut = 0; cut < framed.size(); ++cut) {
        EXPECT_EQ(unpacked(framed.first(cut), "deflate", 1000), "nothing") << cut;
    }
}

TEST(QuoteAnswer, CrossesUnchanged) {
    const Quote quote{u"A\n\u2014 \U0001F343 "_s + QChar(0) + u"b"_s, u"\u00c9"_s};
    std::vector<char> memory(100, '\0');
    ASSERT_TRUE(writeQuoteAnswer(quote, memory));
    EXPECT_EQ(readQuoteAnswer({memory.data(), 100}), quote);
    EXPECT_FALSE(writeQuoteAnswer(quote, std::span(memory).first(5)));
}

TEST(QuoteAnswer, IsNothingUnlessItIsTwoTexts) {
    const auto read = [](const char* bytes, qsizetype size) {
        return readQuoteAnswer({bytes, size}).has_value();
    };
    EXPECT_TRUE(read("a\xff"
                     "b\xff",
                     4));
    EXPECT_FALSE(read("a\xff"
                      "b\xff",
                      3));
    EXPECT_FALSE(read("a\xff\xff", 3));
    EXPECT_FALSE(read("\xff"
                      "b\xff",
                      3));
    EXPECT_FALSE(read("\xc3\xff"
                      "b\xff",
                      4));
    EXPECT_FALSE(read("a\xff"
                      "\xed\xa0\x80\xff",
                      6));
    EXPECT_FALSE(readQuoteAnswer(QByteArray(1000, '\0')));
    EXPECT_FALSE(readQuoteAnswer({}));
}

TEST(SourcePresets, AreThree) {
    ASSERT_EQ(sourcePresets.size(), 3U);
    EXPECT_EQ(sourcePresetLabel(sourcePresets[0]), u"ZenQuotes \u2014 quote of the day");
    EXPECT_EQ(sourcePresets[1].address, "https://zenquotes.io/api/random"_L1);
    EXPECT_EQ(sourcePresets[2].address, "https://dummyjson.com/quotes/random"_L1);
}

class FetchQuote : public testing::Test {
protected:
    std::string fetch(const QString& source) {
        QEventLoop loop;
        std::string result = "nothing";
        bool later = false;
        fetcher.fetchQuote(source, [&](const std::optional<Quote>& quote) {
            EXPECT_TRUE(later);
            EXPECT_EQ(QThread::currentThread(), QCoreApplication::instance()->thread());
            if (quote) {
                result = (quote->text + u'|' + quote->author).toStdString();
            }
            loop.quit();
        });
        later = true;
        loop.exec();
        return result;
    }
    QString file(const QString& name, const QByteArray& bytes) {
        QFile made(folder.filePath(name));
        EXPECT_TRUE(made.open(QIODevice::WriteOnly));
        made.write(bytes);
        return made.fileName();
    }

    QTemporaryDir folder;
    QuoteFetcher fetcher;
};

TEST_F(FetchQuote, ReadsLocalFiles) {
    const QString path = file(u"a b#c?d%20.json"_s, R"({"q":"A"})");
    EXPECT_EQ(fetch("  "_L1 + path + u'\n'), "A|Unknown");
    EXPECT_EQ(fetch(QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)), "A|Unknown");
    QFile::link(path, folder.filePath(u"link"_s));
    EXPECT_EQ(fetch(folder.filePath(u"link"_s)), "A|Unknown");
#ifdef __linux__
    EXPECT_NE(fetch(u"/proc/version"_s), "nothing"); // has a size of 0
#endif
    EXPECT_EQ(fetch(u"data:application/json,%7B%22q%22:%22A%22%7D"_s), "A|Unknown");
    EXPECT_EQ(fetch(u"data:;base64,eyJxIjoiQSJ9"_s), "A|Unknown");
}

TEST_F(FetchQuote, RejectsWhatIsNotARegularFileAtOnce) {
    const QByteArray fifo = QFile::encodeName(folder.filePath(u"fifo"_s));
    ASSERT_EQ(::mkfifo(fifo.constData(), 0600), 0);
    const QByteArray loop = QFile::encodeName(folder.filePath(u"loop"_s));
    ASSERT_EQ(::symlink(loop.constData(), loop.constData()), 0);
    const int listener = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, QFile::encodeName(folder.filePath(u"socket"_s)).constData(),
             sizeof address.sun_path);
    ASSERT_EQ(::bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    QFile sparse(folder.filePath(u"sparse"_s));
    ASSERT_TRUE(sparse.open(QIODevice::WriteOnly));
    ASSERT_TRUE(sparse.resize(qint64{1} << 40));
    QElapsedTimer clock;
    clock.start();
    for (const QString& path :
         {folder.filePath(u"fifo"_s), folder.filePath(u"loop"_s), folder.filePath(u"socket"_s),
          folder.filePath(u"sparse"_s), folder.filePath(u"missing"_s), folder.path(), u"/"_s,
          u"/dev/zero"_s, u"/dev/stdin"_s, u"   "_s, u"no scheme"_s,
          QString(300, u'/') + QString(5000, u'x')}) {
        EXPECT_EQ(fetch(path), "nothing") << path.left(60).toStdString();
    }
    EXPECT_LT(clock.elapsed(), 3000);
    ::close(listener);
}

// In a child process, because root can read everything and must become another user.
TEST_F(FetchQuote, RejectsAFileThatItMayNotRead) {
    const QByteArray open = QFile::encodeName(file(u"open"_s, R"({"q":"A"})"));
    const QByteArray secret = QFile::encodeName(file(u"secret"_s, R"({"q":"A"})"));
    ASSERT_EQ(::chmod(secret.constData(), 0), 0);
    ASSERT_EQ(::chmod(open.constData(), 0644), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(folder.path()).constData(), 0755), 0);
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        constexpr uid_t nobody = 65534;
        if (::geteuid() == 0 && ::setuid(nobody) != 0) {
            ::_exit(3);
        }
        const auto read = [](const QByteArray& path) {
            QFile file;
            return openRegularFile(file, QFile::decodeName(path)) && readWithin(file, 100);
        };
        ::_exit(!read(open) ? 2 : (read(secret) ? 1 : 0));
    }
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

TEST_F(FetchQuote, KeepsTheLongestText) {
#if defined(__SANITIZE_ADDRESS__) // a reader that is slower than its deadline allows
    constexpr int bytes = 1 << 20;
#else
    constexpr int bytes = 4 << 20;
#endif
    const QString text((bytes - 8) / 2, QChar(0x4e2d)); // three bytes each in UTF-8
    QByteArray body("\xff\xfe", 2);
    const QString json = u"{\"q\":\""_s + text.left(text.size() - 20) + u"\"}"_s;
    body.append(reinterpret_cast<const char*>(json.utf16()), json.size() * 2);
    EXPECT_EQ(fetch(file(u"long"_s, body)).size(), (text.size() - 20) * 3 + 8);
}

TEST_F(FetchQuote, IsNothingWithoutItsReader) {
    QuoteFetcher none(folder.filePath(u"missing"_s));
    QEventLoop loop;
    bool found = true;
    none.fetchQuote(file(u"q"_s, R"({"q":"A"})"), [&](const std::optional<Quote>& quote) {
        found = quote.has_value();
        loop.quit();
    });
    loop.exec();
    EXPECT_FALSE(found);
}

TEST_F(FetchQuote, LimitsTheSizeOfAFile) {
    const QByteArray start = R"({"q":"A")";
    const QByteArray full = start + QByteArray((4 << 20) - start.size() - 1, ' ') + "}";
    EXPECT_EQ(fetch(file(u"full"_s, full)), "A|Unknown");
    EXPECT_EQ(fetch(file(u"over"_s, full + " ")), "nothing");
}

TEST_F(FetchQuote, TheFetcherMayBeDestroyedInAnAnswer) {
    auto own = std::make_unique<QuoteFetcher>();
    QEventLoop loop;
    own->fetchQuote(file(u"q"_s, R"({"q":"A"})"), [&](const std::optional<Quote>& quote) {
        EXPECT_TRUE(quote);
        own.reset();
        loop.quit();
    });
    loop.exec();
    EXPECT_FALSE(own);
}

TEST_F(FetchQuote, NoAnswerComesAfterTheFetcherIsDestroyed) {
    auto own = std::make_unique<QuoteFetcher>();
    for (int i = 0; i < 50; ++i) {
        own->fetchQuote(u"/etc/passwd"_s, [](const std::optional<Quote>&) { FAIL(); });
    }
    QElapsedTimer clock;
    clock.start();
    own.reset();
    EXPECT_LT(clock.elapsed(), 2000);
    QEventLoop loop;
    QTimer::singleShot(50, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace
