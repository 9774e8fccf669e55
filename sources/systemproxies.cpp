// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "sources/systemproxies.h"

namespace morrowleaf {

namespace {

class SystemProxies : public QNetworkProxyFactory {
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& query) override {
        return systemProxyForQuery(query);
    }
};

} // namespace

std::unique_ptr<QNetworkProxyFactory> systemProxies() {
    return std::make_unique<SystemProxies>();
}

} // namespace morrowleaf
