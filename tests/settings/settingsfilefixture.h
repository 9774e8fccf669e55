// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/prefs.h"
#include "settings/settingsfile.h"
#include "settings/settingsstore.h"
#include "settings/settingsworker.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLockFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <functional>
#include <gmock/gmock.h>
#include <thread>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

using namespace std::chrono_literals;

// The program that uses a settings file in a process of its own.
inline QString settingsWriter() {
    return QCoreApplication::applicationDirPath() + "/settings_writer"_L1;
}

inline bool waitFor(const std::function<bool()>& condition) {
    QElapsedTimer since;
    since.start();
    while (!condition()) {
        if (since.elapsed() > 20'000) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        QThread::msleep(2);
    }
    return true;
}

inline void spend(std::chrono::milliseconds time) {
    const QDeadlineTimer deadline(time);
    while (!deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        QThread::msleep(2);
    }
}

class SettingsFileTest : public testing::Test {
protected:
    void write(const QByteArray& text) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)); // in place
        file.write(text);
    }

    void replace(const QByteArray& text) {
        QFile file(path + ".editor"_L1);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        ASSERT_EQ(std::rename(QFile::encodeName(file.fileName()).constData(),
                              QFile::encodeName(path).constData()),
                  0);
    }

    QByteArray read(const QString& name) const {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QByteArray read() const { return read(path); }

    QJsonObject json() const { return QJsonDocument::fromJson(read()).object(); }

    QStringList setAside() const {
        return QDir(QFileInfo(path).path())
            .entryList({u"settings.broken-*"_s}, QDir::AllEntries | QDir::System | QDir::Hidden);
    }
    QByteArray asideText(int index = 0) const {
        return read(QFileInfo(path).path() + u'/' + setAside().value(index));
    }

    mode_t mode() const {
        struct stat found {};
        ::stat(QFile::encodeName(path).constData(), &found);
        return found.st_mode & 07777;
    }

    QTemporaryDir home;
    QString path = home.filePath(u"settings.json"_s);
    SettingsStore store;
};

} // namespace morrowleaf
