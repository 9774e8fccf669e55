// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

namespace morrowleaf {

// The system asks the program to end.
class QuitRequests : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

signals:
    void requested();
};

} // namespace morrowleaf
