// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/macos/core/maccore.h"
#include "platform/macos/macparts.h"

#include <QImage>
#include <QPixmap>

namespace morrowleaf {

namespace {

constexpr int symbolSize = 18; // points, as high as those beside it

class MacTray final : public TrayHost {
public:
    MacTray() { QMetaObject::invokeMethod(this, &TrayHost::appeared, Qt::QueuedConnection); }

    QIcon tintedSymbol() const override {
        QIcon icon;
        for (const int ratio : {1, 2}) {
            const int size = symbolSize * ratio;
            QImage image(size, size, QImage::Format_RGBA8888_Premultiplied);
            image.fill(Qt::transparent);
            if (!macDrawStatusSymbol(image.bits(), static_cast<unsigned>(size))) {
                return {};
            }
            image.setDevicePixelRatio(ratio);
            icon.addPixmap(QPixmap::fromImage(image));
        }
        // A template: the system chooses the colour.
        icon.setIsMask(true);
        return icon;
    }

    Click click() const override { return Click::OpensMenu; }
};

} // namespace

std::unique_ptr<TrayHost> makeMacTray() {
    return std::make_unique<MacTray>();
}

} // namespace morrowleaf
