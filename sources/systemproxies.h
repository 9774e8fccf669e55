// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QNetworkProxyFactory>

#include <memory>

namespace morrowleaf {

// The proxies of the desktop or the environment, asked anew for every
// connection. Asking may take long: never on the interface thread.
std::unique_ptr<QNetworkProxyFactory> systemProxies();

} // namespace morrowleaf
