// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/singleinstance.h"

#include <QEventLoop>
#include <QTimer>

#include <memory>

namespace morrowleaf {

// Runs the event loop until `listener` has got a request, and destroys it once that request
// would have been carried out.
inline void endOnceCarriedOut(std::unique_ptr<RequestListener> listener) {
    QEventLoop program;
    QTimer execution;
    execution.setSingleShot(true);
    QObject::connect(listener.get(), &RequestListener::requested, &execution,
                     [&execution] { execution.start(0); });
    QObject::connect(&execution, &QTimer::timeout, &program, [&] {
        listener.reset();
        program.quit();
    });
    program.exec();
}

} // namespace morrowleaf
