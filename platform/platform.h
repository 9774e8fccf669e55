// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/desktopwishes.h"
#include "platform/filechooser.h"
#include "platform/floater.h"
#include "platform/inputtaps.h"
#include "platform/loginitem.h"
#include "platform/notifications.h"
#include "platform/overlaywindow.h"
#include "platform/screens.h"
#include "platform/sessionevents.h"
#include "platform/singleinstance.h"
#include "platform/trayhost.h"

#include <memory>

namespace morrowleaf {

// Everything that the program needs from the desktop. No member is null, but `requests`
// is once the program ends; all are used on the main thread and destroyed before the
// application object.
struct Platform {
    std::unique_ptr<MainScreen> mainScreen;
    std::unique_ptr<OverlayMaker> overlays;
    std::unique_ptr<DesktopPicture> desktopPicture;
    std::unique_ptr<FileChooser> fileChooser;
    std::unique_ptr<Floater> floater;
    std::unique_ptr<InputTaps> inputTaps;
    std::unique_ptr<SessionEvents> sessionEvents;
    std::unique_ptr<TrayHost> trayHost;
    std::unique_ptr<LoginItem> loginItem;
    std::unique_ptr<DesktopWishes> wishes;
    std::unique_ptr<Notifications> notifications;
    std::unique_ptr<RequestListener> requests;
};

} // namespace morrowleaf
