#include "app/settingswindow.h"

#include <QVBoxLayout>

#include <algorithm>

namespace morrowleaf {

namespace {
constexpr QSize contentSize(520, 520);
constexpr int leftMargin = 32;
constexpr int belowMiddle = 400;
} // namespace

std::unique_ptr<QWidget> makeSettingsWindow(QWidget* view) {
    auto window = std::make_unique<QWidget>(
        nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                     Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint |
                     Qt::WindowStaysOnTopHint);
    window->setObjectName("SettingsWindow");
    window->setWindowTitle("Morrowleaf Settings");
    window->setAttribute(Qt::WA_QuitOnClose, false);
    auto* layout = new QVBoxLayout(window.get());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view);
    window->setFixedSize(contentSize.expandedTo(view->minimumSize()));
    return window;
}

QPoint settingsWindowOrigin(const QRect& available, const QSize& frame) {
    const int left = available.left() + leftMargin;
    const int top = available.top() + available.height() / 2 + belowMiddle - frame.height();
    const int lastLeft = available.left() + std::max(available.width() - frame.width(), 0);
    const int lastTop = available.top() + std::max(available.height() - frame.height(), 0);
    return {std::clamp(left, available.left(), lastLeft),
            std::clamp(top, available.top(), lastTop)};
}

} // namespace morrowleaf
