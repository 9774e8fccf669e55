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

#include <fcntl.h>
#include <linux/landlock.h>
#include <sched.h>
#include <seccomp.h>
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

// Without a use in any reader, and each a way to other processes or into the kernel.
constexpr std::array refusedCalls{
    // other programs, and looking into other processes
    SCMP_SYS(execve), SCMP_SYS(execveat), SCMP_SYS(ptrace), SCMP_SYS(process_vm_readv),
    SCMP_SYS(process_vm_writev), SCMP_SYS(pidfd_open), SCMP_SYS(pidfd_getfd), SCMP_SYS(kcmp),
    SCMP_SYS(process_madvise),
    // what slows others down or moves them about
    SCMP_SYS(setpriority), SCMP_SYS(ioprio_set), SCMP_SYS(sched_setscheduler),
    SCMP_SYS(sched_setparam), SCMP_SYS(sched_setattr), SCMP_SYS(sched_setaffinity),
    SCMP_SYS(migrate_pages), SCMP_SYS(move_pages),
    // signals; an abort ends the process even so
    SCMP_SYS(kill), SCMP_SYS(tkill), SCMP_SYS(tgkill), SCMP_SYS(rt_sigqueueinfo),
    SCMP_SYS(rt_tgsigqueueinfo), SCMP_SYS(pidfd_send_signal),
    // memory and queues that other processes share, among them the display's
    SCMP_SYS(shmget), SCMP_SYS(shmat), SCMP_SYS(shmctl), SCMP_SYS(msgget), SCMP_SYS(semget),
    SCMP_SYS(mq_open),
    // waiting for connections
    SCMP_SYS(listen), SCMP_SYS(accept), SCMP_SYS(accept4),
    // large and young parts of the kernel
    SCMP_SYS(io_uring_setup), SCMP_SYS(io_uring_enter), SCMP_SYS(io_uring_register), SCMP_SYS(bpf),
    SCMP_SYS(userfaultfd), SCMP_SYS(perf_event_open), SCMP_SYS(keyctl), SCMP_SYS(add_key),
    SCMP_SYS(request_key), SCMP_SYS(fanotify_init), SCMP_SYS(name_to_handle_at),
    SCMP_SYS(open_by_handle_at),
    // what only root may do, which this may be
    SCMP_SYS(mount), SCMP_SYS(umount2), SCMP_SYS(pivot_root), SCMP_SYS(chroot), SCMP_SYS(unshare),
    SCMP_SYS(setns), SCMP_SYS(reboot), SCMP_SYS(swapon), SCMP_SYS(swapoff), SCMP_SYS(init_module),
    SCMP_SYS(finit_module), SCMP_SYS(delete_module), SCMP_SYS(kexec_load), SCMP_SYS(acct),
    SCMP_SYS(settimeofday), SCMP_SYS(clock_settime), SCMP_SYS(sethostname), SCMP_SYS(setdomainname),
    SCMP_SYS(quotactl), SCMP_SYS(personality)};

// Collects what is refused, for all threads.
class Filter {
public:
    Filter()
        : rules_(seccomp_init(SCMP_ACT_ALLOW)) {
        seccomp_attr_set(rules_, SCMP_FLTATR_CTL_TSYNC, 1);
        // There the numbers of the calls mean others.
        seccomp_attr_set(rules_, SCMP_FLTATR_ACT_BADARCH, SCMP_ACT_KILL_PROCESS);
    }
    ~Filter() { seccomp_release(rules_); }
    Filter(const Filter&) = delete;
    Filter& operator=(const Filter&) = delete;

    void refuse(int call, int error = EPERM) {
        seccomp_rule_add_array(rules_, SCMP_ACT_ERRNO(error), call, 0, nullptr);
    }
    // Only where the first argument compares so.
    void refuseIf(int call, scmp_compare compare, scmp_datum_t a, scmp_datum_t b = 0,
                  int error = EPERM) {
        const scmp_arg_cmp first{0, compare, a, b};
        seccomp_rule_add_array(rules_, SCMP_ACT_ERRNO(error), call, 1, &first);
    }
    // Returns whether the filter is in force.
    bool install() { return seccomp_load(rules_) == 0; }

private:
    scmp_filter_ctx rules_; // null if there is no memory; every function fails then
};

// The comparisons are of 64 bits, of which the kernel reads half: so whatever is above the
// highest kind is refused, too.
void refuseOtherSockets(Filter& filter) {
    // Netlink tells the resolver which addresses this machine has. Pairs of sockets within
    // the process stay: libcurl wakes its threads with them.
    constexpr std::array kinds{AF_INET, AF_INET6, AF_NETLINK};
    constexpr int highest = AF_NETLINK;
    for (int kind = 0; kind <= highest; ++kind) {
        if (std::find(kinds.begin(), kinds.end(), kind) == kinds.end()) {
            filter.refuseIf(SCMP_SYS(socket), SCMP_CMP_EQ, static_cast<scmp_datum_t>(kind), 0,
                            EAFNOSUPPORT);
        }
    }
    filter.refuseIf(SCMP_SYS(socket), SCMP_CMP_GT, highest, 0, EAFNOSUPPORT);
}

bool refuseCalls(JailKind kind) {
    Filter filter;
    for (const int call : refusedCalls) {
        filter.refuse(call);
    }
    // Threads, but no processes. The younger call keeps its flags where no filter can see
    // them; a C library then falls back on the older one.
    filter.refuse(SCMP_SYS(fork));
    filter.refuse(SCMP_SYS(vfork));
    filter.refuse(SCMP_SYS(clone3), ENOSYS);
    filter.refuseIf(SCMP_SYS(clone), SCMP_CMP_MASKED_EQ, CLONE_THREAD, 0);
    filter.refuseIf(SCMP_SYS(prlimit64), SCMP_CMP_NE, 0); // the limits of others
    if (kind == JailKind::Web) {
        refuseOtherSockets(filter);
    } else {
        filter.refuse(SCMP_SYS(socket));
        filter.refuse(SCMP_SYS(socketpair));
        filter.refuse(SCMP_SYS(connect));
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
