#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QThreadPool>

#include <atomic>
#include <functional>
#include <memory>

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
    PhotoImport();
    ~PhotoImport() override; // stops what runs

    using Done = std::function<void(const std::shared_ptr<PendingFile>&)>;

    // `done` is called later, on this object's thread, with null on any
    // failure; it never leaves that thread.
    void start(const QString& source, const QString& destination, Done done);

private:
    void finish(int number, const std::shared_ptr<PendingFile>& copy);

    QHash<int, Done> waiting_;
    int last_ = 0;
    QThreadPool worker_;
    std::atomic<bool> cancelled_ = false;
};

} // namespace morrowleaf
