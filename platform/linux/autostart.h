// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/loginitem.h"

#include <QStringList>

#include <memory>

namespace morrowleaf {

struct AutostartPlaces {
    QString userFolder;        // where the user's entry goes
    QStringList systemFolders; // where the system's entries are, first one first
    QString program;           // absolute path of what shall be started
};

// The places of this session and this program.
AutostartPlaces autostartPlaces();

// A login item by an entry in the desktop's autostart folder.
std::unique_ptr<LoginItem> makeAutostart(AutostartPlaces places);

} // namespace morrowleaf
