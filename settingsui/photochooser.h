// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <optional>

class QWidget;

namespace morrowleaf {

class FileChooser;

// Lets the user pick one picture file, in the desktop's dialog or, if the desktop has
// none, in Qt's. Never blocks. Main thread.
class PhotoChooser : public QObject {
    Q_OBJECT

public:
    // The dialog belongs to the window of `parent` and closes with it. `desktop` must
    // outlive the chooser.
    PhotoChooser(FileChooser& desktop, QWidget* parent);

    // Opens the dialog; does nothing while it is open.
    void choose();

signals:
    void opening(); // emitted just before the dialog opens
    void closed();  // emitted after the dialog has closed, whatever the outcome
    // Emitted after closed() unless the user cancelled; an absolute local path.
    void picked(const QString& path);

private:
    void chooseWithQt();
    void finish(const std::optional<QString>& path);

    FileChooser& desktop_;
    bool isOpen_ = false;
};

} // namespace morrowleaf
