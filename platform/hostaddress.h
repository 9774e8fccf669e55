// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

class QByteArray;

namespace morrowleaf {

// Whether the system's resolver has an address for a host (a name, or an
// address itself). Blocks as long as the resolver does; any thread.
bool hasAddress(const QByteArray& host);

} // namespace morrowleaf
