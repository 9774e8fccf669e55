// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QStandardPaths>

// Called by libFuzzer, which has the main function, before the first input.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    QApplication::setAttribute(Qt::AA_Use96Dpi);
    // Never destroyed: at the end of the process what its destructor uses is gone already.
    static const auto* const app = new QApplication(*argc, *argv);
    static_cast<void>(app);
    QApplication::setQuitOnLastWindowClosed(false);
    return 0;
}

// So this is not freed either.
extern "C" const char* __lsan_default_suppressions() { // NOLINT(bugprone-reserved-identifier)
    return "leak:libfontconfig";
}
