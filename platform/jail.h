// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>

namespace morrowleaf {

// What a reader program gives up before it reads the first byte of a stranger. From then
// on a fault in a decoder or in a library of the web harms that one process only.

enum class JailKind {
    Web,      // may connect to any host, and read the files of the system but no home
    OpenFile, // may read what is open already, and nothing else
    Photo,    // may read what is open already, and below /usr, where the decoders are
};

// What is in force. Limits on memory, time and files always are.
struct Confinement {
    bool noNewPrivileges = false;
    int fileRules = 0;         // version of the kernel's rules on files; 0 if there are none
    bool refusesCalls = false; // to the system: programs, processes, signals, sockets
};

// Confines the calling process for good. `readable` are more files or folders that it may
// read. What the kernel cannot do is left out without a word. Must be called before the
// process has a second thread.
Confinement confine(JailKind kind, const QList<QByteArray>& readable = {});

// The part of confine() that every system has: limits of memory, processor time and open
// files, and no files written. What the process has mapped stays writable.
void setReaderLimits(JailKind kind);

// Closes what the process that has started this one may have left open, such as its
// connection to the display, but for the standard streams and the descriptor `kept`; and
// ends this process when that one ends. Where the system can.
void leaveParent(int kept);

} // namespace morrowleaf
