// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// What a reader program could still do if a stranger took it over. The table is printed;
// less than the kernel offers is a failure.

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalServer>
#include <QProcess>
#include <QTcpServer>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>

#include <linux/seccomp.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

// What a kernel offers.
struct Kernel {
    int fileRules; // their version; 0 for none
    bool filters;
};

Kernel thisKernel() {
    constexpr unsigned askForVersion = 1;
    const auto version = ::syscall(SYS_landlock_create_ruleset, nullptr, 0, askForVersion);
    const unsigned action = SECCOMP_RET_ERRNO;
    return {std::max(0, static_cast<int>(version)),
            ::syscall(SYS_seccomp, SECCOMP_GET_ACTION_AVAIL, 0, &action) == 0};
}

enum class User { This, Nobody };

class Jail : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(tcp.listen(QHostAddress::LocalHost));
        ASSERT_TRUE(local.listen(folder.filePath(u"socket"_s)));
        QFile secret(folder.filePath(u"secret"_s));
        ASSERT_TRUE(secret.open(QIODevice::WriteOnly));
        secret.write("secret");
        ASSERT_GE(::dup(STDIN_FILENO), 0); // started programs get this one
        // For another user too.
        ::chmod(QFile::encodeName(folder.path()).constData(), 0777);
        ::chmod(QFile::encodeName(secret.fileName()).constData(), 0666);
        ::chmod(QFile::encodeName(folder.filePath(u"socket"_s)).constData(), 0777);
    }

    // What the taken-over process managed to do.
    QJsonObject takeOver(const QString& kind, User user, const Kernel& kernel) {
        QProcess process;
        QStringList less;
        if (user == User::Nobody) {
            less << u"nobody"_s;
        }
        if (kernel.fileRules < thisKernel().fileRules) {
            less << u"no-file-rules"_s;
        }
        if (kernel.filters < thisKernel().filters) {
            less << u"no-filters"_s;
        }
        process.start(QCoreApplication::applicationDirPath() + "/jailed"_L1,
                      QStringList{kind, folder.path(),
                                  QString::number(QCoreApplication::applicationPid()),
                                  local.fullServerName(), QString::number(tcp.serverPort())} +
                          less);
        EXPECT_TRUE(process.waitForFinished(30'000));
        executed = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
        return QJsonDocument::fromJson(process.readAllStandardOutput()).object();
    }

    void check(const QString& kind, User user = User::This, const Kernel& kernel = thisKernel());

    QTemporaryDir folder;
    QTcpServer tcp;
    QLocalServer local;
    bool executed = false;
};

void Jail::check(const QString& kind, User user, const Kernel& kernel) {
    const QJsonObject report = takeOver(kind, user, kernel);
    ASSERT_FALSE(report.isEmpty());
    std::cout << kind.toStdString() << (user == User::Nobody ? " as nobody" : "")
              << (kernel.fileRules > 0 ? "" : " without rules on files")
              << (kernel.filters ? ": " : " without filters: ")
              << QJsonDocument(report).toJson(QJsonDocument::Compact).toStdString() << '\n';
    EXPECT_TRUE(report[u"noNewPrivileges"_s].toBool());
    EXPECT_EQ(report[u"fileRules"_s].toInt(), kernel.fileRules);
    EXPECT_EQ(report[u"refusesCalls"_s].toBool(), kernel.filters);
    const auto expectOnly = [&](bool possible, const QString& what) {
        EXPECT_EQ(report[what].toBool(), possible)
            << kind.toStdString() << ": " << what.toStdString();
    };
    const bool web = kind == "web"_L1;
    if (kernel.fileRules > 0) {
        expectOnly(false, u"read the home"_s);
        expectOnly(false, u"read /proc"_s);
        expectOnly(false, u"create a file"_s);
        expectOnly(web, u"read /etc"_s);
        expectOnly(kind != "file"_L1, u"read /usr"_s);
        EXPECT_FALSE(executed);
    }
    if (kernel.filters) {
        expectOnly(false, u"connect to a local socket"_s);
        expectOnly(web, u"connect by TCP"_s);
        expectOnly(web, u"send by UDP"_s);
        for (const QString& what :
             {u"wait for connections"_s, u"signal the parent"_s, u"limit the parent"_s,
              u"trace the parent"_s, u"start a process"_s}) {
            expectOnly(false, what);
        }
        EXPECT_FALSE(executed);
    }
    expectOnly(false, u"use what the parent had open"_s);
    // The limits.
    expectOnly(false, u"write a file"_s);
#if !defined(__SANITIZE_ADDRESS__)
    expectOnly(false, u"take 700 MiB"_s);
#endif
    if (kind != "file"_L1) {
        expectOnly(true, u"start a thread"_s); // the resolver and the scaling of images do
    }
}

TEST_F(Jail, HoldsAReaderOfTheWeb) {
    check(u"web"_s);
}

TEST_F(Jail, HoldsAReaderOfAFile) {
    check(u"file"_s);
}

TEST_F(Jail, HoldsAReaderOfPhotos) {
    check(u"photo"_s);
}

TEST_F(Jail, HoldsAnOrdinaryUser) {
    if (::geteuid() != 0) {
        GTEST_SKIP() << "this is an ordinary user";
    }
    for (const QString& kind : {u"web"_s, u"file"_s, u"photo"_s}) {
        check(kind, User::Nobody);
    }
}

TEST_F(Jail, HoldsWithWhatTheKernelHas) {
    const Kernel all = thisKernel();
    if (!all.filters) {
        GTEST_SKIP() << "only filters can hide what this kernel has";
    }
    for (const Kernel& less :
         {Kernel{0, all.filters}, Kernel{all.fileRules, false}, Kernel{0, false}}) {
        for (const QString& kind : {u"web"_s, u"file"_s, u"photo"_s}) {
            check(kind, User::This, less);
        }
    }
}

} // namespace
