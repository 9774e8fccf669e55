// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/x11/x11picture.h"

#include <QPixmap>
#include <QScreen>

namespace morrowleaf {

namespace {

class X11Picture final : public DesktopPicture {
public:
    QImage capture(QScreen& screen) override {
        QImage picture = screen.grabWindow(0).toImage();
        if (!picture.isNull() && picture.format() != QImage::Format_RGB32) {
            picture.convertTo(QImage::Format_RGB32);
        }
        return picture;
    }
};

} // namespace

std::unique_ptr<DesktopPicture> makeX11Picture() {
    return std::make_unique<X11Picture>();
}

} // namespace morrowleaf
