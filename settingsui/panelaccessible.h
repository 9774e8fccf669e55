// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

class QString;
class QWidget;

namespace morrowleaf {

// Makes `group` a named group for assistive programs. From the first call on
// they also hear what the controls of this room are.
void speakAsGroup(QWidget& group, const QString& name);

} // namespace morrowleaf
