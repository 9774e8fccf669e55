// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/application.h"

int main(int argc, char** argv) {
    return morrowleaf::runApplication(argc, argv);
}
