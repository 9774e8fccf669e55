// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/portalwishes.h"
#include "platform/linux/desktopparts.h"
#include "platform/linux/x11/xsettings.h"

#include <utility>

namespace morrowleaf {

namespace {

class JoinedWishes final : public DesktopWishes {
public:
    JoinedWishes(std::unique_ptr<DesktopWishes> portal, std::unique_ptr<DesktopWishes> server)
        : portal_(std::move(portal))
        , server_(std::move(server))
        , wishes_(joined()) {
        connect(portal_.get(), &DesktopWishes::changed, this, &JoinedWishes::join);
        if (server_) {
            connect(server_.get(), &DesktopWishes::changed, this, &JoinedWishes::join);
        }
    }

    Wishes current() const override { return wishes_; }

private:
    Wishes joined() const {
        Wishes all = portal_->current();
        all.reducedMotion = all.reducedMotion || (server_ && server_->current().reducedMotion);
        return all;
    }
    void join() {
        const Wishes next = joined();
        if (next != wishes_) {
            wishes_ = next;
            emit changed(next);
        }
    }

    std::unique_ptr<DesktopWishes> portal_;
    std::unique_ptr<DesktopWishes> server_; // null except on X11
    Wishes wishes_;
};

} // namespace

std::unique_ptr<DesktopWishes> makeDesktopWishes(std::shared_ptr<const BusLink> session, bool x11) {
    return std::make_unique<JoinedWishes>(std::make_unique<PortalWishes>(std::move(session)),
                                          x11 ? makeXSettingsWishes() : nullptr);
}

} // namespace morrowleaf
