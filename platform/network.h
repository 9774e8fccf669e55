// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

namespace morrowleaf {

// The folder of the certificates that the system trusts, one file each, named by their
// hash: a connection reads only the one that it needs. Empty if there is no such folder;
// the default of a library applies then. Any thread.
QByteArray certificateFolder();

} // namespace morrowleaf
