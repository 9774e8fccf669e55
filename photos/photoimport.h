// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

#include <deque>
#include <functional>
#include <memory>

class QThreadPool;

namespace morrowleaf {

// A file that goes away with its last holder unless it was kept.
class PendingFile {
public:
    explicit PendingFile(QString path)
        : path_(std::move(path)) {}
    ~PendingFile();
    PendingFile(const PendingFile&) = delete;
    PendingFile& operator=(const PendingFile&) = delete;

    const QString& path() const { return path_; }
    void keep() { kept_ = true; }

private:
    QString path_;
    bool kept_ = false;
};

// Copies and checks photos one after the other in a worker.
class PhotoImport : public QObject {
    Q_OBJECT

public:
    explicit PhotoImport(QThreadPool& workers);
    ~PhotoImport() override; // waits for nothing and leaves no copy behind

    using Done = std::function<void(const std::shared_ptr<PendingFile>&)>;

    // `done` is called later, on this object's thread, with null on any
    // failure; it never leaves that thread.
    void start(const QString& source, const QString& destination, Done done);

private:
    struct Job {
        QString source;
        QString destination;
        Done done;
    };
    struct Copying; // what a worker may still touch when this is gone

    static std::shared_ptr<PendingFile> copied(const QString& source, const QString& destination,
                                               Copying& copying);
    void work();
    void finish(const std::shared_ptr<PendingFile>& copy);

    QThreadPool& workers_;
    std::deque<Job> jobs_; // the first is being worked on
    std::shared_ptr<Copying> copying_;
};

} // namespace morrowleaf
