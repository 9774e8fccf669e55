// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// A process that has been taken over: it confines itself as a reader program does, tries
// everything that would harm the user, and prints one JSON object with what succeeded.
//
// jailed web|file|photo HOME PARENT SOCKET PORT [LESS...]: HOME holds a file "secret" and
// may be written, PARENT is a process, SOCKET a local socket, PORT a TCP port of this
// machine. LESS is "nobody", the user who tries it all, or what the kernel shall lack:
// "no-file-rules", "no-filters".

#include "platform/jail.h"

#include <QByteArray>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <thread>

#include <fcntl.h>
#include <netinet/in.h>
#include <seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

// Returns whether that is so from then on, as far as this process can see.
bool reduce(const QByteArray& less) {
    if (less == "nobody") {
        constexpr uid_t nobody = 65534;
        return ::setgid(nobody) == 0 && ::setuid(nobody) == 0;
    }
    const scmp_filter_ctx filter = seccomp_init(SCMP_ACT_ALLOW);
    const auto remove = [filter](int call) {
        seccomp_rule_add_array(filter, SCMP_ACT_ERRNO(ENOSYS), call, 0, nullptr);
    };
    if (less == "no-file-rules") {
        remove(SYS_landlock_create_ruleset);
    }
    if (less == "no-filters") {
        const scmp_arg_cmp older{0, SCMP_CMP_EQ, PR_SET_SECCOMP, 0};
        remove(SCMP_SYS(seccomp));
        seccomp_rule_add_array(filter, SCMP_ACT_ERRNO(EINVAL), SCMP_SYS(prctl), 1, &older);
    }
    return seccomp_load(filter) == 0;
}

bool canRead(const QByteArray& path) {
    const int file = ::open(path.constData(), O_RDONLY | O_CLOEXEC);
    char byte = 0;
    const bool read = file >= 0 && ::read(file, &byte, 1) == 1;
    ::close(file);
    return read;
}

bool canWrite(const QByteArray& path) {
    const int file = ::open(path.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    const bool written = file >= 0 && ::write(file, "x", 1) == 1;
    ::close(file);
    return written;
}

bool canCreate(const QByteArray& path) {
    return ::open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600) >= 0;
}

bool canConnectLocally(const QByteArray& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, path.constData(), sizeof address.sun_path - 1);
    const int to = ::socket(AF_UNIX, SOCK_STREAM, 0);
    return ::connect(to, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
}

bool canConnect(int port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    const int to = ::socket(AF_INET, SOCK_STREAM, 0);
    return ::connect(to, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
}

bool canListen() {
    const int at = ::socket(AF_INET, SOCK_STREAM, 0);
    return ::listen(at, 1) == 0;
}

bool canFork() {
    const pid_t child = ::fork();
    if (child == 0) {
        ::_exit(0);
    }
    return child > 0 && ::waitpid(child, nullptr, 0) == child;
}

// In this process, so this comes last.
bool executes() {
    char* const arguments[] = {nullptr};
    ::execv("/bin/true", arguments);
    return false;
}

bool canStartThread() {
    bool ran = false;
    std::thread([&ran] { ran = true; }).join();
    return ran;
}

bool canLimit(int process) {
    rlimit now{};
    return ::prlimit(process, RLIMIT_CORE, nullptr, &now) == 0;
}

bool hasOpenFiles() {
    bool open = false;
    for (int descriptor = 3; descriptor < 1024; ++descriptor) {
        open = open || ::fcntl(descriptor, F_GETFD) >= 0;
    }
    return open;
}

bool canAllocate(std::size_t bytes) {
    void* const got =
        ::mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return got != MAP_FAILED;
}

} // namespace

int main(int argc, char** argv) {
    constexpr int firstLess = 6;
    if (argc < firstLess) {
        return 2;
    }
    for (int i = firstLess; i < argc; ++i) {
        if (!reduce(argv[i])) {
            return 2;
        }
    }
    const QByteArray name = argv[1];
    const JailKind kind = name == "web"    ? JailKind::Web
                          : name == "file" ? JailKind::OpenFile
                                           : JailKind::Photo;
    const QByteArray home = argv[2];
    const int parent = std::atoi(argv[3]);
    const int port = std::atoi(argv[5]);
    constexpr int nothing = -1;
    leaveParent(nothing);
    const bool heir = hasOpenFiles();
    const Confinement held = confine(kind);

    QJsonObject report{
        {u"noNewPrivileges"_s, held.noNewPrivileges},
        {u"fileRules"_s, held.fileRules},
        {u"refusesCalls"_s, held.refusesCalls},
        {u"use what the parent had open"_s, heir},
        {u"read the home"_s, canRead(home + "/secret")},
        {u"read /etc"_s, canRead("/etc/passwd")},
        {u"read /proc"_s, canRead("/proc/self/status")},
        {u"read /usr"_s, canRead("/usr/bin/env")},
        {u"write a file"_s, canWrite(home + "/secret")},
        {u"create a file"_s, canCreate(home + "/made-" + name)},
        {u"connect to a local socket"_s, canConnectLocally(argv[4])},
        {u"connect by TCP"_s, canConnect(port)},
        {u"send by UDP"_s, ::socket(AF_INET, SOCK_DGRAM, 0) >= 0},
        {u"wait for connections"_s, canListen()},
        {u"signal the parent"_s, ::kill(parent, 0) == 0},
        {u"trace the parent"_s, ::ptrace(PTRACE_SEIZE, parent, nullptr, nullptr) == 0},
        {u"limit the parent"_s, canLimit(parent)},
        {u"start a process"_s, canFork()},
        {u"take 700 MiB"_s, canAllocate(std::size_t{700} << 20U)},
    };
    if (kind != JailKind::OpenFile) {
        report[u"start a thread"_s] = canStartThread();
    }
    std::puts(QJsonDocument(report).toJson(QJsonDocument::Compact).constData());
    std::fflush(stdout);
    return executes() ? 0 : 3; // a started program would end with 0
}
