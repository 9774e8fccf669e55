// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// Loads one source as the program would and prints the outcome as one JSON object: the
// quotation, the time, the memory and the longest gap of a 16 ms timer on the main
// thread, with the gap of the same run without a load.
//
// loadprobe WARM-UP-SOURCE SOURCE [COUNT]: COUNT simultaneous loads, 1 by default

#include "sources/fetchquote.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>

#include <cstdio>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

qint64 memoryKiB(const char* field) {
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith(field)) {
            return line.simplified().split(' ').value(1).toLongLong();
        }
    }
    return 0;
}

void forgetPeak() {
    QFile refs(u"/proc/self/clear_refs"_s);
    if (refs.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        refs.write("5");
    }
}

// Milliseconds that the calling thread has waited for a processor while it was ready.
qint64 waitedForProcessor() {
    QFile statistics(u"/proc/thread-self/schedstat"_s);
    if (!statistics.open(QIODevice::ReadOnly)) {
        return 0;
    }
    return statistics.readAll().simplified().split(' ').value(1).toLongLong() / 1'000'000;
}

// The longest time between two ticks of a 16 ms timer during its life, without the time
// that other programs took.
class Gap {
public:
    Gap() {
        timer_.setTimerType(Qt::PreciseTimer);
        timer_.callOnTimeout([this] { tick(); });
        clock_.start();
        timer_.start(16);
    }
    qint64 longest() {
        tick();
        return longest_;
    }

private:
    void tick() {
        const qint64 waited = waitedForProcessor();
        longest_ = std::max(longest_, clock_.restart() - (waited - waited_));
        waited_ = waited;
    }

    QTimer timer_;
    QElapsedTimer clock_;
    qint64 waited_ = waitedForProcessor();
    qint64 longest_ = 0;
};

struct Outcome {
    std::optional<Quote> quote;
    qint64 milliseconds = 0;
};

Outcome load(QuoteFetcher& fetcher, const QString& source, int count) {
    Outcome outcome;
    QEventLoop loop;
    QElapsedTimer clock;
    clock.start();
    int left = count;
    for (int i = 0; i < count; ++i) {
        fetcher.fetchQuote(source, [&](std::optional<Quote> quote) {
            outcome.quote = std::move(quote);
            if (--left == 0) {
                loop.quit();
            }
        });
    }
    loop.exec();
    outcome.milliseconds = clock.elapsed();
    return outcome;
}

void idle(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3) {
        return 2;
    }
    QJsonObject report;
    QElapsedTimer parting;
    {
        QuoteFetcher fetcher;
        load(fetcher, arguments[1], 1); // loads plugins, tables and the like
        idle(50);
        const qint64 before = memoryKiB("VmRSS:");
        forgetPeak();
        Gap gap;
        const Outcome outcome = load(fetcher, arguments[2], arguments.value(3, u"1"_s).toInt());
        report["gap"_L1] = gap.longest();
        report["memoryKiB"_L1] = memoryKiB("VmHWM:") - before;
        report["milliseconds"_L1] = outcome.milliseconds;
        if (outcome.quote) {
            report["text"_L1] = outcome.quote->text;
            report["author"_L1] = outcome.quote->author;
        }
        Gap quiet;
        idle(static_cast<int>(std::min<qint64>(outcome.milliseconds, 1000)));
        report["quietGap"_L1] = quiet.longest();
        parting.start();
    }
    report["partingMilliseconds"_L1] = parting.elapsed();
    std::puts(QJsonDocument(report).toJson(QJsonDocument::Compact).constData());
    return 0;
}
