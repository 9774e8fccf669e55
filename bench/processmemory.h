// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

// What this process has in memory, in kilobytes; 0 where the system does not
// tell.
qint64 residentKilobytes();
qint64 peakKilobytes();

// Returns freed memory to the system and resets the peak.
void forgetPeak();
