// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "tests/macos/storyviews.h"

#include "platform/macos/nativeview.h"
#include "tests/macos/fakes/macfakes.h"

#include <QWidget>

#include <map>

namespace morrowleaf {

namespace {

std::map<WId, void*> views;

} // namespace

void* nativeView(const QWidget& window) {
    void*& view = views[window.winId()];
    if (view == nullptr) {
        view = macfakes::makeView();
    }
    return view;
}

void forgetViews() {
    views.clear();
}

} // namespace morrowleaf
