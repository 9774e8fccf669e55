// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/filechooser.h"

namespace morrowleaf {

// Counts the questions, and answers the last one when told to.
class FakeFileChooser final : public FileChooser {
public:
    void ask(QWidget& /*window*/, const FileQuestion& /*question*/,
             std::function<void(const FileAnswer&)> done) override {
        ++asked;
        answer = std::move(done);
    }

    int asked = 0;
    std::function<void(const FileAnswer&)> answer;
};

} // namespace morrowleaf
