// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/quitrequests.h"

#include <memory>

namespace morrowleaf {

// SIGTERM, SIGINT and SIGHUP as quit requests on the main thread.
std::unique_ptr<QuitRequests> makeUnixSignals();

} // namespace morrowleaf
