// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <wayland-client.h>

extern "C" {
// The generated C names an argument like this.
#define namespace ns_
#include "wlr-layer-shell-unstable-v1.h"
#undef namespace
#include "kde-blur.h"
#include "wlr-screencopy-unstable-v1.h"
}
