// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

class QString;
class QWidget;

namespace morrowleaf {

// Makes `group` a named group for screen readers. The first call also installs the
// accessible interfaces of this room's controls.
void makeAccessibleGroup(QWidget& group, const QString& name);

} // namespace morrowleaf
