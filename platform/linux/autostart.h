// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/loginitem.h"

#include <QStringList>

#include <memory>

namespace morrowleaf {

struct AutostartPlaces {
    QString userFolder;        // with the user's entries
    QStringList systemFolders; // with the system's entries, the most important one first
    QString program;           // absolute path of the program to start
};

// The places for this session and this program. Needs no application object.
AutostartPlaces autostartPlaces();

// A login item that is a desktop entry in the user's autostart folder.
std::unique_ptr<LoginItem> makeAutostart(AutostartPlaces places);

} // namespace morrowleaf
