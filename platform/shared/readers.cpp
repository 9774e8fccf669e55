// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/readers.h"

#include <QCoreApplication>
#include <QDir>
#include <QLoggingCategory>
#include <QPointer>
#include <QProcess>
#include <QTimer>

#include <utility>

#include <fcntl.h>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

// The readers themselves write nothing anywhere: what they would say may be a stranger's.
Q_LOGGING_CATEGORY(log, "morrowleaf.readers", QtWarningMsg)

// Kills the process if it runs, and forgets it. The destructor of a QProcess waits for the
// end of its process, which may be far away if a file system blocks it: so the object goes
// when that end is known.
void letGo(QProcess* process) {
    process->disconnect();
    const auto end = [process] { process->deleteLater(); };
    if (process->state() == QProcess::NotRunning) {
        end();
        return;
    }
    QObject::connect(process, &QProcess::stateChanged, process,
                     [end](QProcess::ProcessState state) {
                         if (state == QProcess::NotRunning) {
                             end();
                         }
                     });
    process->kill();
}

} // namespace

class Reading::Request : public QObject {
public:
    Request(Readers& readers, ReaderWish wish, Readers::Done done)
        : readers_(&readers)
        , wish_(std::move(wish))
        , done_(std::move(done)) {
        timer_.setSingleShot(true);
        timer_.setTimerType(Qt::PreciseTimer);
        timer_.callOnTimeout([this] { answer({}); });
        if (wish_.counted == ReaderWish::Counted::FromWish) {
            timer_.start(wish_.time);
        }
    }
    ~Request() override { end(); }

    void start(const QString& program) {
        if (wish_.answerSize > 0 && wish_.request.size() <= readerRequestLimit) {
            memory_ = AnswerMemory::make(wish_.answerSize);
        }
        if (!memory_) {
            timer_.start(0);
            return;
        }
        if (wish_.counted == ReaderWish::Counted::FromStart) {
            timer_.start(wish_.time);
        }
        const int descriptor = memory_->descriptor();
        process_ = new QProcess; // see letGo()
        process_->setProgram(program);
        process_->setArguments({QString::number(descriptor)});
        process_->setStandardOutputFile(QProcess::nullDevice());
        process_->setStandardErrorFile(QProcess::nullDevice());
        process_->setChildProcessModifier([descriptor] { ::fcntl(descriptor, F_SETFD, 0); });
        connect(process_, &QProcess::finished, this, &Request::finish);
        connect(
            process_, &QProcess::errorOccurred, this,
            [this](QProcess::ProcessError error) {
                if (error == QProcess::FailedToStart) {
                    answer({});
                }
            },
            Qt::QueuedConnection); // it may be emitted within start()
        process_->start(QIODevice::WriteOnly);
        process_->write(wish_.request + '\n');
        process_->closeWriteChannel();
    }

    // Ends everything but the object itself.
    void end() {
        done_ = nullptr;
        timer_.stop();
        if (process_ != nullptr) {
            letGo(std::exchange(process_, nullptr));
        }
        memory_.reset();
        if (Readers* const readers = std::exchange(readers_, nullptr)) {
            readers->leave(this);
        }
    }

private:
    void finish(int exitCode, QProcess::ExitStatus status) {
        answer(status == QProcess::NormalExit && exitCode == 0 ? memory_->take() : AnswerBytes{});
    }

    void answer(const AnswerBytes& bytes) {
        if (!bytes && readers_ != nullptr) {
            qCInfo(log).noquote() << readers_->program_ << "has not answered";
        }
        const Readers::Done done = std::exchange(done_, nullptr);
        end();
        if (done) {
            done(bytes); // may destroy this
        }
    }

    QPointer<Readers> readers_;
    ReaderWish wish_;
    Readers::Done done_;
    QTimer timer_;
    std::optional<AnswerMemory> memory_;
    QProcess* process_ = nullptr;
};

Reading::Reading() = default;
Reading::Reading(std::unique_ptr<Request> request)
    : request_(std::move(request)) {}
Reading::~Reading() = default;
Reading::Reading(Reading&& other) noexcept = default;
Reading& Reading::operator=(Reading&& other) noexcept = default;

Readers::Readers(QString program, int atOnce, QObject* parent)
    : QObject(parent)
    , program_(std::move(program))
    , atOnce_(atOnce) {}

Readers::~Readers() {
    for (const auto requests = waiting_ + running_; Reading::Request* const request : requests) {
        request->end();
    }
}

Reading Readers::read(ReaderWish wish, Done done) {
    auto request = std::make_unique<Reading::Request>(*this, std::move(wish), std::move(done));
    waiting_.append(request.get());
    startWaiting();
    return Reading(std::move(request));
}

void Readers::leave(Reading::Request* request) {
    waiting_.removeOne(request);
    if (running_.removeOne(request) && !waiting_.isEmpty()) {
        // Later, because this may be the first of many that leave together.
        QMetaObject::invokeMethod(this, &Readers::startWaiting, Qt::QueuedConnection);
    }
}

void Readers::startWaiting() {
    while (running_.size() < atOnce_ && !waiting_.isEmpty()) {
        running_.append(waiting_.takeLast());
        running_.last()->start(program_);
    }
}

QString readerPath(const QString& name) {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../libexec/morrowleaf/"_L1 +
                           name);
}

} // namespace morrowleaf
