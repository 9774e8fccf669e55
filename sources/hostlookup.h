// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QUrl>

namespace morrowleaf {

// Whether the first host on the way to `url` (a proxy's, or its own) has an
// address. Blocks as long as the resolver does. Asked before a connection is
// tried, because the network layer looks names up in threads that it joins
// when the program ends: a resolver that hangs would hang the exit.
bool canBeReached(const QUrl& url);

} // namespace morrowleaf
