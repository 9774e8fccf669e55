// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// Measures what a load costs: the time until its answer, the processor time of the main
// thread, and that of the reader as "reader_ms".

#include "sources/fetchquote.h"

#include <QEventLoop>
#include <QFile>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray body = R"({"q": "A line.", "a": "A Neighbour"})";

// Of all readers that have ended; 0 on systems without that file.
double readerSeconds() {
    constexpr double ticks = 100; // a second
    QFile file(u"/proc/self/stat"_s);
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QByteArray status = file.readAll();
    const QList<QByteArray> fields = status.mid(status.lastIndexOf(')') + 2).split(' ');
    return (fields.value(13).toDouble() + fields.value(14).toDouble()) / ticks;
}

void loadAgainAndAgain(benchmark::State& state, const QString& source) {
    QuoteFetcher fetcher;
    const double before = readerSeconds();
    for ([[maybe_unused]] auto _ : state) {
        QEventLoop loop;
        fetcher.fetchQuote(source, [&](const std::optional<Quote>& quote) {
            if (!quote) {
                state.SkipWithError("nothing is loaded");
            }
            loop.quit();
        });
        loop.exec();
    }
    state.counters["reader_ms"] =
        benchmark::Counter(1e3 * (readerSeconds() - before), benchmark::Counter::kAvgIterations);
}

void loadFile(benchmark::State& state) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"quote"_s));
    if (file.open(QIODevice::WriteOnly)) {
        file.write(body);
        file.close();
    }
    loadAgainAndAgain(state, file.fileName());
}

// On the loopback address; answering it is part of the time of the main thread.
void loadFromWeb(benchmark::State& state) {
    qputenv("no_proxy", "*");
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    QObject::connect(&server, &QTcpServer::newConnection, [&server] {
        QTcpSocket* const connection = server.nextPendingConnection();
        QObject::connect(connection, &QTcpSocket::readyRead, [connection] {
            connection->write("HTTP/1.1 200 OK\r\nContent-Length: " +
                              QByteArray::number(body.size()) + "\r\n\r\n" + body);
        });
        QObject::connect(connection, &QTcpSocket::disconnected, connection, &QObject::deleteLater);
    });
    loadAgainAndAgain(state, u"http://127.0.0.1:%1/"_s.arg(server.serverPort()));
}

BENCHMARK(loadFile)->Unit(benchmark::kMillisecond);
BENCHMARK(loadFromWeb)->Unit(benchmark::kMillisecond);

} // namespace
