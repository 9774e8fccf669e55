#pragma once

#include <QPoint>
#include <QRect>
#include <QWidget>

#include <memory>

namespace morrowleaf {

// The window around the settings view: titled, closable, above ordinary
// windows, as large as the view. Closing hides it and never ends the program.
std::unique_ptr<QWidget> makeSettingsWindow(QWidget* view);

// Where the top left corner of the window with its frame belongs in the part
// of the screen that panels leave free: near the left edge, the bottom 400
// points below the middle, moved as little as needed to lie whole in there.
QPoint settingsWindowOrigin(const QRect& available, const QSize& frame);

} // namespace morrowleaf
