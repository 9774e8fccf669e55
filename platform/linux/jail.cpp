// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// The most important file of the project: it stands between the user's session and
// whatever a stranger's picture or web server makes of a fault in a decoder, in TLS or in
// HTTP. The process that reads those bytes passes through confine() first and can never go
// back. Three fences stand behind one another, because none is there on every machine:
//
// 1. Limits (setrlimit), everywhere: a bomb ends its own process and nothing else.
// 2. Rules on files (Landlock, since Linux 5.13): what the rules do not name cannot be
//    opened, not even by root. No home, no settings, no keys, and nothing is written.
// 3. Refused calls (seccomp): no programs, no processes, no signals, no looking into
//    others, and only the sockets that the task needs. A local socket would be an open
//    door to the session bus and the display, whatever the rules on files say.
//
// The refusals are a list of what is forbidden rather than of what is allowed: the next
// version of a library may call something new, and a reader that dies of its own C library
// helps nobody. What the list forgets is still behind the other two fences.
//
// Nothing here reports a failure: where a fence is missing the others stand. Tests check
// that no fence is missing that the kernel offers (tests/platform/jail_test.cpp).

#include "platform/jail.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/landlock.h>
#include <linux/seccomp.h>
#include <sched.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

// ---- Rules on files

// The kernel's structure in its newest version; headers may be older.
struct Ruleset {
    std::uint64_t files = 0;
    std::uint64_t network = 0;
    std::uint64_t scopes = 0;
};

// How much of the structure a version of the kernel knows.
std::size_t sizeOfRuleset(int version) {
    return version >= 6   ? sizeof(Ruleset)
           : version >= 4 ? offsetof(Ruleset, scopes)
                          : offsetof(Ruleset, network);
}

// Everything that a version can forbid: what is not forbidden here is allowed everywhere.
Ruleset rulesetFor(int version, JailKind kind) {
    const std::uint64_t kindsOfAccess = version >= 5   ? 16  // with ioctl() on devices
                                        : version >= 3 ? 15  // with truncate()
                                        : version >= 2 ? 14  // with moving between folders
                                                       : 13; // with executing and reading
    Ruleset rules;
    rules.files = (std::uint64_t{1} << kindsOfAccess) - 1;
    if (version >= 4 && kind != JailKind::Web) {
        rules.network = 3; // no TCP connections, neither way
    }
    if (version >= 6) {
        rules.scopes = 3; // no abstract local sockets and no signals to others
    }
    return rules;
}

void allowReading(int ruleset, const QByteArray& path) {
    landlock_path_beneath_attr rule{};
    rule.parent_fd = ::open(path.constData(), O_PATH | O_CLOEXEC);
    if (rule.parent_fd < 0) {
        return;
    }
    const auto add = [&](std::uint64_t access) {
        rule.allowed_access = access;
        return ::syscall(SYS_landlock_add_rule, ruleset, LANDLOCK_RULE_PATH_BENEATH, &rule, 0) == 0;
    };
    // The second is for a plain file.
    static_cast<void>(add(LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR) ||
                      add(LANDLOCK_ACCESS_FS_READ_FILE));
    ::close(rule.parent_fd);
}

QList<QByteArray> readableFor(JailKind kind) {
    switch (kind) {
    case JailKind::Web:
        // Name services and their configuration, certificates, libraries that are loaded late.
        return {"/usr", "/lib", "/lib64", "/etc",
                QFile::encodeName(QFileInfo(u"/etc/resolv.conf"_s).canonicalFilePath())};
    case JailKind::OpenFile:
        return {};
    case JailKind::Photo:
        return {"/usr", "/lib", "/lib64", "/etc/ld.so.cache"};
    }
    return {};
}

// Returns the version of the rules in force, or 0.
int setFileRules(JailKind kind, const QList<QByteArray>& readable) {
    const auto version = static_cast<int>(
        ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION));
    if (version < 1) {
        return 0;
    }
    const Ruleset rules = rulesetFor(version, kind);
    const auto ruleset =
        static_cast<int>(::syscall(SYS_landlock_create_ruleset, &rules, sizeOfRuleset(version), 0));
    if (ruleset < 0) {
        return 0;
    }
    for (const QByteArray& path : readableFor(kind) + readable) {
        allowReading(ruleset, path);
    }
    const bool set = ::syscall(SYS_landlock_restrict_self, ruleset, 0) == 0;
    ::close(ruleset);
    return set ? version : 0;
}

// ---- Refused calls

#if defined(__x86_64__)
constexpr std::uint32_t architecture = AUDIT_ARCH_X86_64;
#elif defined(__aarch64__)
constexpr std::uint32_t architecture = AUDIT_ARCH_AARCH64;
#else
constexpr std::uint32_t architecture = 0; // not tried anywhere else, so there is no filter
#endif

constexpr std::uint32_t allowed = SECCOMP_RET_ALLOW;

constexpr std::uint32_t refusedWith(int error) {
    return SECCOMP_RET_ERRNO | static_cast<std::uint32_t>(error);
}

// A program for the kernel, which runs it at every call with the call's number and
// arguments.
class Filter {
public:
    Filter() {
        load(offsetof(seccomp_data, arch));
        // Under another architecture the numbers mean other calls.
        unless(BPF_JEQ, architecture, SECCOMP_RET_KILL_PROCESS);
        load(offsetof(seccomp_data, nr));
#if defined(__x86_64__)
        // So they do in the second numbering of this one.
        constexpr std::uint32_t secondNumbering = 0x40000000;
        when(BPF_JGE, secondNumbering, SECCOMP_RET_KILL_PROCESS);
#endif
    }

    void refuse(long call, int error = EPERM) {
        when(BPF_JEQ, static_cast<std::uint32_t>(call), refusedWith(error));
    }

    // Refuses `call` unless its argument is one of `values`.
    void refuseUnlessOneOf(long call, std::size_t argument, const std::vector<int>& values,
                           int error) {
        std::vector<sock_filter> of;
        std::swap(of, code_);
        loadArgument(argument);
        for (const int value : values) {
            when(BPF_JEQ, static_cast<std::uint32_t>(value), allowed);
        }
        end(refusedWith(error));
        insertFor(call, of);
    }

    // Refuses `call` unless its argument has this bit.
    void refuseWithout(long call, std::size_t argument, std::uint32_t bit) {
        std::vector<sock_filter> of;
        std::swap(of, code_);
        loadArgument(argument);
        when(BPF_JSET, bit, allowed);
        end(refusedWith(EPERM));
        insertFor(call, of);
    }

    // Returns whether the filter is in force, for all threads.
    bool install() {
        end(allowed);
        const sock_fprog program{static_cast<unsigned short>(code_.size()), code_.data()};
        return ::syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, SECCOMP_FILTER_FLAG_TSYNC,
                         &program) == 0;
    }

private:
    void load(std::size_t offset) {
        code_.push_back(BPF_STMT(BPF_LD | BPF_W | BPF_ABS, static_cast<std::uint32_t>(offset)));
    }
    // The lower half, which both architectures store first; the upper one never matters.
    void loadArgument(std::size_t number) {
        load(offsetof(seccomp_data, args) + number * sizeof(std::uint64_t));
    }
    void end(std::uint32_t verdict) {
        code_.push_back(BPF_STMT(BPF_RET | BPF_K, verdict));
    }
    void jump(int comparison, std::uint32_t value, std::size_t then, std::size_t otherwise) {
        code_.push_back(BPF_JUMP(static_cast<std::uint16_t>(BPF_JMP | comparison | BPF_K), value,
                                 static_cast<std::uint8_t>(then),
                                 static_cast<std::uint8_t>(otherwise)));
    }
    void when(int comparison, std::uint32_t value, std::uint32_t verdict) {
        jump(comparison, value, 0, 1);
        end(verdict);
    }
    void unless(int comparison, std::uint32_t value, std::uint32_t verdict) {
        jump(comparison, value, 1, 0);
        end(verdict);
    }
    // Appends what has been collected, to be run for `call` only, to `before`.
    void insertFor(long call, std::vector<sock_filter>& before) {
        const std::vector<sock_filter> block = std::exchange(code_, std::move(before));
        jump(BPF_JEQ, static_cast<std::uint32_t>(call), 0, block.size());
        code_.insert(code_.end(), block.begin(), block.end());
    }

    std::vector<sock_filter> code_;
};

// Without a use in any reader, and each a way to other processes or into the kernel.
constexpr std::array refusedCalls{
    // other programs, and looking into other processes
    SYS_execve, SYS_execveat, SYS_ptrace, SYS_process_vm_readv, SYS_process_vm_writev,
    SYS_pidfd_open, SYS_pidfd_getfd, SYS_kcmp, SYS_process_madvise,
    // what slows others down or moves them about
    SYS_setpriority, SYS_ioprio_set, SYS_sched_setscheduler, SYS_sched_setparam, SYS_sched_setattr,
    SYS_sched_setaffinity, SYS_migrate_pages, SYS_move_pages,
    // signals; an abort ends the process even so
    SYS_kill, SYS_tkill, SYS_tgkill, SYS_rt_sigqueueinfo, SYS_rt_tgsigqueueinfo,
    SYS_pidfd_send_signal,
    // memory and queues that other processes share, among them the display's
    SYS_shmget, SYS_shmat, SYS_shmctl, SYS_msgget, SYS_semget, SYS_mq_open,
    // waiting for connections
    SYS_listen, SYS_accept, SYS_accept4,
    // large and young parts of the kernel
    SYS_io_uring_setup, SYS_io_uring_enter, SYS_io_uring_register, SYS_bpf, SYS_userfaultfd,
    SYS_perf_event_open, SYS_keyctl, SYS_add_key, SYS_request_key, SYS_fanotify_init,
    SYS_name_to_handle_at, SYS_open_by_handle_at,
    // what only root may do, which this may be
    SYS_mount, SYS_umount2, SYS_pivot_root, SYS_chroot, SYS_unshare, SYS_setns, SYS_reboot,
    SYS_swapon, SYS_swapoff, SYS_init_module, SYS_finit_module, SYS_delete_module, SYS_kexec_load,
    SYS_acct, SYS_settimeofday, SYS_clock_settime, SYS_sethostname, SYS_setdomainname, SYS_quotactl,
    SYS_personality};

bool refuseCalls(JailKind kind) {
    if (architecture == 0) {
        return false;
    }
    Filter filter;
    for (const long call : refusedCalls) {
        filter.refuse(call);
    }
    // Threads, but no processes. The younger call keeps its flags where no filter can see
    // them; a C library then falls back on the older one.
#if defined(SYS_fork)
    filter.refuse(SYS_fork);
    filter.refuse(SYS_vfork);
#endif
    filter.refuse(SYS_clone3, ENOSYS);
    filter.refuseWithout(SYS_clone, 0, CLONE_THREAD);
    filter.refuseUnlessOneOf(SYS_prlimit64, 0, {0}, EPERM); // the limits of others
    if (kind == JailKind::Web) {
        // Netlink tells the resolver which addresses this machine has. Pairs of sockets
        // within the process stay: libcurl wakes its threads with them.
        filter.refuseUnlessOneOf(SYS_socket, 0, {AF_INET, AF_INET6, AF_NETLINK}, EAFNOSUPPORT);
    } else {
        filter.refuse(SYS_socket);
        filter.refuse(SYS_socketpair);
        filter.refuse(SYS_connect);
    }
    return filter.install();
}

} // namespace

Confinement confine(JailKind kind, const QList<QByteArray>& readable) {
    setReaderLimits(kind);
    // Nobody else of this user may look into the process or stop it in the middle.
    ::prctl(PR_SET_DUMPABLE, 0);
    Confinement held;
    // The other fences need this one: a program with more rights than its caller could be
    // misled by them.
    held.noNewPrivileges = ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0;
    if (held.noNewPrivileges) {
        held.fileRules = setFileRules(kind, readable);
        held.refusesCalls = refuseCalls(kind); // last, because it refuses much of the above
    }
    return held;
}

void leaveParent(int kept) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    const unsigned from = STDERR_FILENO + 1;
    const auto after = static_cast<unsigned>(std::max(kept, STDERR_FILENO)) + 1;
    if (after > from + 1) {
        ::close_range(from, after - 2, 0);
    }
    ::close_range(after, ~0U, 0);
}

} // namespace morrowleaf
