// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// Loads from a malicious server. Each load runs in a process of its own, so that its
// time, memory and main thread can be measured; several run at once, because most of them
// last until the deadline.

#include "sources/fetchquote.h"
#include "tools/sourcepath.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QProcess>
#include <QTimer>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <iostream>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char* nothing = nullptr;

struct Case {
    const char* place; // a path, or an address with placeholders for the ports
    const char* text;  // the text of the quotation
    int count = 1;     // simultaneous loads
};

constexpr std::array cases{
    Case{"ok", "A"},
    Case{"ok", "A", 2},
    Case{"silent", nothing},
    Case{"silent", nothing, 2},
    Case{"drip-header", nothing},
    Case{"drip-body", nothing},
    Case{"drip-endless", nothing},
    Case{"slow-but-in-time", "A"},
    Case{"endless", nothing},
    Case{"endless-chunked", nothing},
    Case{"endless-tiny-chunks", nothing},
    Case{"terabyte-announced", nothing},
    Case{"at-the-cap", "A"},
    Case{"over-the-cap", nothing},
    Case{"gzip-over-the-cap", nothing},
    Case{"hungry-json", nothing},
    Case{"deep-json", nothing},
    Case{"endless-header", nothing},
    Case{"endless-headers", nothing},
    Case{"endless-status", nothing},
    Case{"endless-continue", nothing},
    Case{"endless-chunk-extension", nothing},
    Case{"endless-trailer", nothing},
    Case{"reset-at-once", nothing},
    Case{"reset-in-body", nothing},
    Case{"close-at-once", nothing},
    Case{"too-short", nothing},
    Case{"error-too-short", nothing},
    Case{"too-long", "A"},
    Case{"no-length", "A"},
    Case{"gzipped", "A"},
    Case{"deflated", "A"},
    Case{"gzip-bomb", nothing},
    Case{"deflate-bomb", nothing},
    Case{"gzip-endless", nothing},
    Case{"gzip-empty-members", nothing},
    Case{"gzip-garbage", nothing},
    Case{"gzip-cut", nothing},
    Case{"gzip-cut-text", nothing},
    Case{"gzip-members", "A"},
    Case{"unknown-encoding", nothing},
    Case{"redirect/19", "A"},
    Case{"redirect/20", "A"},
    Case{"redirect/21", nothing},
    Case{"redirect-loop", nothing},
    Case{"redirect-to-file", nothing},
    Case{"redirect-to-data", nothing},
    Case{"redirect-to-ftp", nothing},
    Case{"redirect-nowhere", nothing},
    Case{"redirect-flood", "A"}, // nobody has to read the body of a redirect
    Case{"no-content", nothing},
    Case{"not-modified", nothing},
    Case{"status-401", "A"},
    Case{"status-404", "A"},
    Case{"status-407", "A"},
    Case{"status-418", "A"},
    Case{"status-500", "A"},
    Case{"status-599", "A"},
    Case{"asks-for-password", "A"},
    Case{"html", nothing},
    Case{"wrong-type", "A"},
    Case{"chunked", "A"},
    Case{"chunked-garbage", nothing},
    Case{"chunked-cut", nothing},
    Case{"cut-in-the-header", nothing},
    Case{"not-http", nothing},
    Case{"binary-noise", nothing},
    Case{"https://127.0.0.1:IPV4/ok", nothing},
    Case{"https://127.0.0.1:TLS/ok", "A"},
    Case{"https://localhost:TLS/ok", nothing}, // the certificate is for another name
    Case{"https://127.0.0.1:TLS/too-short", nothing},
    Case{"https://127.0.0.1:TLS/to-http", nothing},
    Case{"to-https", "A"},
    Case{"to-https-and-back", nothing},
    Case{"http://[::1]:IPV6/ok", "A"},
    Case{"http://127.0.0.1:FULL/", nothing},
    Case{"http://127.0.0.1:1/", nothing},
    Case{"http://nothing.invalid/", nothing},
};

class HostileServer : public testing::Test {
protected:
    void SetUp() override {
        server.start(u"python3"_s,
                     {u"-B"_s, morrowleaf::sourcePath(u"tests/fakes/hostileserver.py"_s)});
        while (!server.canReadLine() && server.waitForReadyRead(20000)) {
        }
        ports = QString::fromLatin1(server.readLine()).simplified().split(u' ');
        ASSERT_EQ(ports.size(), 5);
        qputenv("SSL_CERT_FILE", ports[4].toUtf8());
        // Keeps a proxy of the machine away from the loopback address.
        qputenv("no_proxy", "127.0.0.1,::1,nothing.invalid");
    }
    void TearDown() override {
        server.closeWriteChannel();
        EXPECT_TRUE(server.waitForFinished(10000));
    }

    QString address(const char* place) const {
        QString text = QString::fromUtf8(place);
        if (!text.startsWith("http"_L1)) {
            text.prepend("http://127.0.0.1:IPV4/"_L1);
        }
        return text.replace("IPV4"_L1, ports[0])
            .replace("IPV6"_L1, ports[1])
            .replace("FULL"_L1, ports[2])
            .replace("TLS"_L1, ports[3]);
    }

    // How often the server has been asked for something that ends in `tail`.
    int requests(const QString& tail) {
        server.waitForReadyRead(0);
        while (server.canReadLine()) {
            asked << QString::fromUtf8(server.readLine()).trimmed();
        }
        return int(std::count_if(asked.begin(), asked.end(),
                                 [&](const QString& line) { return line.endsWith(tail); }));
    }

    void start(const Case& one, std::function<void(const QJsonObject&)> done) {
        const QString tag = u"?load=%1"_s.arg(++loads);
        auto* probe = new QProcess(QCoreApplication::instance());
        QObject::connect(probe, &QProcess::finished, probe, [=, this, done = std::move(done)] {
            QJsonObject report = QJsonDocument::fromJson(probe->readAllStandardOutput()).object();
            report["crashed"_L1] =
                probe->exitStatus() != QProcess::NormalExit || probe->exitCode() != 0;
            report["errors"_L1] = QString::fromUtf8(probe->readAllStandardError());
            report["requests"_L1] = requests(tag);
            probe->deleteLater();
            done(report);
        });
        probe->start(QCoreApplication::applicationDirPath() + "/loadprobe"_L1,
                     {address("ok"), address(one.place) + tag, QString::number(one.count)});
    }

    QProcess server;
    QStringList ports;
    QStringList asked;
    int loads = 0;
};

// No load repeats its request.
int expectedRequests(const Case& one) {
    const QByteArray place(one.place);
    const bool arrives = !place.startsWith("http") || place.contains("IPV6") ||
                         place.startsWith("https://127.0.0.1:TLS");
    return arrives ? one.count : 0;
}

// What is wrong with a load; empty if everything is right.
QString complaint(const Case& one, const QJsonObject& report) {
    QStringList wrong;
    const auto most = [&](QLatin1StringView what, int limit) {
        const int value = report[what].toInt(99999);
        if (value > limit) {
            wrong << u"%1 %2"_s.arg(what).arg(value);
        }
    };
    if (report["crashed"_L1].toBool()) {
        wrong << u"crashed"_s;
    }
    if (report["text"_L1].toString() != QString::fromUtf8(one.text)) {
        wrong << "text "_L1 + report["text"_L1].toString().left(100);
    }
    if (report["requests"_L1].toInt() != expectedRequests(one)) {
        wrong << u"requests %1"_s.arg(report["requests"_L1].toInt());
    }
    most("milliseconds"_L1, 6500);
    most("partingMilliseconds"_L1, 1000);
    most("gap"_L1, report["quietGap"_L1].toInt() + 50);
#if !defined(__SANITIZE_ADDRESS__)
    most("memoryKiB"_L1, 32 * 1024);
#endif
    return wrong.isEmpty() ? QString()
                           : wrong.join(", "_L1) + u' ' + report["errors"_L1].toString();
}

// A busy machine is late now and then, so failed loads are repeated with fewer and fewer
// beside them; the fourth failure counts.
TEST_F(HostileServer, CannotHangCrashBloatOrStallTheProgram) {
    QList<std::size_t> waiting(cases.size());
    std::iota(waiting.begin(), waiting.end(), std::size_t{0});
    QMap<std::size_t, QString> wrong;
    for (const int atOnce : {6, 3, 1, 1}) {
        QEventLoop loop;
        int running = 0;
        wrong.clear();
        const std::function<void()> fill = [&] {
            while (running < atOnce && !waiting.isEmpty()) {
                const std::size_t index = waiting.takeFirst();
                ++running;
                start(cases[index], [&, index](const QJsonObject& report) {
                    const QString why = complaint(cases[index], report);
                    if (!why.isEmpty()) {
                        wrong[index] = why;
                    }
                    --running;
                    fill();
                });
            }
            if (running == 0) {
                loop.quit();
            }
        };
        QTimer::singleShot(0, &loop, fill);
        loop.exec();
        waiting = wrong.keys();
        for (auto one = wrong.constBegin(); one != wrong.constEnd(); ++one) {
            std::cout << cases[one.key()].place << ": " << one.value().toStdString() << '\n';
        }
        if (waiting.isEmpty()) {
            break;
        }
    }
    EXPECT_EQ(requests(u"?in-the-clear"_s), 0);
    for (auto one = wrong.constBegin(); one != wrong.constEnd(); ++one) {
        ADD_FAILURE() << cases[one.key()].place << ": " << one.value().toStdString();
    }
}

TEST_F(HostileServer, GetsNoHeadersBeyondAcceptAndTheLoaders) {
    QEventLoop loop;
    QString text;
    start({"echo", nothing}, [&](const QJsonObject& report) {
        text = report["text"_L1].toString();
        loop.quit();
    });
    loop.exec();
    QStringList names;
    for (const QString& line : text.split(u'\n')) {
        if (line.contains(u':')) {
            names << line.section(u':', 0, 0);
        }
    }
    EXPECT_EQ(names, QStringList({u"Accept-Encoding"_s, u"Accept"_s, u"Host"_s, u"User-Agent"_s}));
    EXPECT_TRUE(text.contains("Accept: application/json\n"_L1)) << text.toStdString();
}

TEST_F(HostileServer, GetsNoCookieBack) {
    QEventLoop loop;
    QString text;
    start({"sets-cookie", nothing}, [&](const QJsonObject& report) {
        text = report["text"_L1].toString();
        loop.quit();
    });
    loop.exec();
    EXPECT_TRUE(text.contains("Accept:"_L1)) << text.toStdString();
    EXPECT_FALSE(text.contains("Cookie"_L1)) << text.toStdString();
}

TEST_F(HostileServer, IsReachedThroughTheProxyOfTheEnvironmentOrTheDesktop) {
    const auto load = [] {
        morrowleaf::QuoteFetcher fetcher;
        QEventLoop loop;
        QString text;
        fetcher.fetchQuote(u"http://nothing.invalid/ok"_s,
                           [&](const std::optional<morrowleaf::Quote>& quote) {
                               text = quote ? quote->text : u"nothing"_s;
                               loop.quit();
                           });
        loop.exec();
        return text;
    };
    const QByteArray proxy = "http://127.0.0.1:" + ports[0].toLatin1();
    for (const char* variable : {"http_proxy", "https_proxy", "HTTPS_PROXY", "all_proxy",
                                 "ALL_PROXY", "no_proxy", "NO_PROXY"}) {
        qunsetenv(variable);
    }
    qputenv("LD_LIBRARY_PATH", DESKTOP_PROXY_FOLDER);
    qputenv("DESKTOP_PROXY", proxy);
    EXPECT_EQ(load(), u"A"_s);
    qputenv("DESKTOP_PROXY", "direct://");
    EXPECT_EQ(load(), u"nothing"_s);
    qputenv("http_proxy", proxy);
    EXPECT_EQ(load(), u"A"_s);
    qputenv("http_proxy", "http://127.0.0.1:1");
    EXPECT_EQ(load(), u"nothing"_s); // and no way around it
    qputenv("no_proxy", "nothing.invalid");
    EXPECT_EQ(load(), u"nothing"_s);
    EXPECT_EQ(requests(u"http://nothing.invalid/ok"_s), 2);
    for (const char* variable : {"http_proxy", "LD_LIBRARY_PATH", "DESKTOP_PROXY"}) {
        qunsetenv(variable);
    }
}

TEST_F(HostileServer, DisturbsNoOtherLoad) {
    morrowleaf::QuoteFetcher fetcher;
    QEventLoop loop;
    QStringList texts;
    for (const char* place : {"endless", "gzip-empty-members", "slow-and-large"}) {
        fetcher.fetchQuote(address(place), [&](const std::optional<morrowleaf::Quote>& quote) {
            texts << (quote ? quote->text : u"nothing"_s);
            if (texts.size() == 3) {
                loop.quit();
            }
        });
    }
    loop.exec();
    EXPECT_EQ(texts, QStringList({u"nothing"_s, u"nothing"_s, u"A"_s}));
}

TEST_F(HostileServer, CannotHoldBackMoreLoadsThanItsOwn) {
    morrowleaf::QuoteFetcher fetcher;
    QEventLoop loop;
    QElapsedTimer clock;
    clock.start();
    int left = 12;
    qint64 quick = 0;
    const auto end = [&] {
        if (--left == 0) {
            loop.quit();
        }
    };
    for (int i = 0; i < 11; ++i) {
        fetcher.fetchQuote(address("silent"), [&](const std::optional<morrowleaf::Quote>& quote) {
            EXPECT_FALSE(quote);
            end();
        });
    }
    // Nothing is left for it but to wait, and it may wait no longer than the others.
    fetcher.fetchQuote(address("ok"), [&](const std::optional<morrowleaf::Quote>&) {
        quick = clock.elapsed();
        end();
    });
    loop.exec();
    EXPECT_LT(quick, 7000);
    EXPECT_LT(clock.elapsed(), 7000);
}

} // namespace
