// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/filechooser.h"

#include <QPointer>
#include <QWidget>

namespace morrowleaf {

// Counts the questions, and answers the last one when a test calls answer().
class FakeFileChooser final : public FileChooser {
public:
    FileRequest* ask(QWidget& window, const FileQuestion& /*question*/) override {
        ++asked;
        request_ = new FileRequest(&window);
        return request_;
    }

    // Has no effect once the window of the question has been destroyed.
    void answer(const FileAnswer& answer) {
        if (request_) {
            request_->deleteLater();
            emit request_->answered(answer);
        }
    }

    int asked = 0;

private:
    QPointer<FileRequest> request_;
};

} // namespace morrowleaf
