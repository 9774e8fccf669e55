// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/answermemory.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>

namespace morrowleaf {

// Reader programs. What strangers wrote is never read in this process, but in one that
// lives as long as one answer: it may hang, crash or be taken over, and is killed then.

// One question to a reader program.
struct ReaderWish {
    enum class Counted {
        FromWish,  // includes the time in the queue
        FromStart, // of the reader
    };

    QByteArray request;       // at most readerRequestLimit bytes
    qsizetype answerSize = 0; // bytes; without any, nothing is asked or answered
    std::chrono::milliseconds time{0};
    Counted counted = Counted::FromWish;
};

inline constexpr qsizetype readerRequestLimit = qsizetype{1} << 20; // bytes

// A wish on its way. Destroying it, or assigning another one to it, kills the reader
// without waiting for its end; `done` is not called then.
class Reading {
public:
    Reading(); // wishes for nothing
    ~Reading();
    Reading(Reading&& other) noexcept;
    Reading& operator=(Reading&& other) noexcept;

private:
    friend class Readers;
    class Request;
    explicit Reading(std::unique_ptr<Request> request);

    std::unique_ptr<Request> request_;
};

// The readers of one kind. At most `atOnce` of them run at the same time; of the wishes
// that wait, the newest is next. Main thread, because readers die with the thread that
// starts them.
class Readers : public QObject {
public:
    using Done = std::function<void(const AnswerBytes&)>;

    // `program` is the path of the reader program.
    Readers(QString program, int atOnce, QObject* parent = nullptr);
    // Like destroying all readings.
    ~Readers() override;

    // Calls `done` at most once, later, on this thread: with `answerSize` bytes, or with
    // none if the program is missing, does not end with status 0 in its time, or is killed.
    // `done` may destroy the reading and the readers.
    [[nodiscard]] Reading read(ReaderWish wish, Done done);

private:
    friend class Reading::Request;
    void leave(Reading::Request* request);
    void startWaiting();

    QString program_;
    qsizetype atOnce_;
    QList<Reading::Request*> waiting_; // the newest last
    QList<Reading::Request*> running_;
};

// The path of the reader program `name`, in the folder libexec/morrowleaf beside that of
// this program. Needs an application object.
QString readerPath(const QString& name);

} // namespace morrowleaf
