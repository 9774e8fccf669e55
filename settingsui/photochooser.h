// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <optional>

class QWidget;

namespace morrowleaf {

class FileChooser;

// Lets the user pick one picture file: in the desktop's dialog, or in Qt's
// where the desktop has none. Never blocks.
class PhotoChooser : public QObject {
    Q_OBJECT

public:
    // The dialog belongs to the window of `parent`, and goes with it.
    // `desktop` outlives the chooser.
    PhotoChooser(FileChooser& desktop, QWidget* parent);

    // Opens the dialog; does nothing while it is open.
    void choose();

signals:
    void opening(); // emitted just before the dialog opens
    void closed();  // after it has gone, whichever way
    // Follows closed() unless the user cancelled; an absolute local path.
    void picked(const QString& path);

private:
    void chooseWithQt();
    void finish(const std::optional<QString>& path);

    FileChooser& desktop_;
    bool isOpen_ = false;
};

} // namespace morrowleaf
