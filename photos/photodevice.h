// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDeadlineTimer>
#include <QFile>
#include <QIODevice>

#include <chrono>

namespace morrowleaf {

// A regular file as an image decoder may see it: the input ends after a time
// and after a number of bytes, so that no file keeps a decoder for ever. It is
// no QFile, so that no decoder maps it into memory.
class PhotoDevice : public QIODevice {
    Q_OBJECT

public:
    struct Bounds {
        std::chrono::milliseconds time = std::chrono::seconds(10);
        qint64 bytes = Q_INT64_C(4) << 30; // read in all, counting repeats
    };
    explicit PhotoDevice(const QString& path)
        : PhotoDevice(path, Bounds{}) {}
    PhotoDevice(const QString& path, Bounds bounds); // open unless refused

    bool exhausted() const { return exhausted_; } // a bound ended the input

    qint64 size() const override { return file_.size(); }
    bool seek(qint64 pos) override;

protected:
    qint64 readData(char* data, qint64 maxSize) override;
    qint64 writeData(const char* /*data*/, qint64 /*size*/) override { return -1; }

private:
    QFile file_;
    QDeadlineTimer deadline_;
    qint64 bytesLeft_;
    bool exhausted_ = false;
};

} // namespace morrowleaf
