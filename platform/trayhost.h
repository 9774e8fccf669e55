// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QObject>

namespace morrowleaf {

// Reports that the desktop has a tray for status items. Qt looks for a tray only once, on
// the main thread and over the message bus, so create a status item only after appeared():
// whoever Qt asks has answered shortly before. Never emitted beside a bus that does not
// answer, not even for a tray that needs no bus. Main thread.
class TrayHost : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    // The symbol of the status item in a form that the desktop tints by itself. Null if
    // there is none; the program draws and colours it then.
    virtual QIcon tintedSymbol() const { return {}; }

    enum class Click {
        PopsUpMenu, // the program opens the menu
        OpensMenu,  // the system has opened the menu by itself
        ShowsQuote, // no menu can be placed
    };
    // What a click on the status item does.
    virtual Click click() const { return Click::PopsUpMenu; }

signals:
    // Not emitted before the event loop runs. A new host does not know the items of this
    // program: create them again.
    void appeared();
};

} // namespace morrowleaf
