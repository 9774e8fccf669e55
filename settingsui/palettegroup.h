// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace morrowleaf {

class SettingsStore;

// The palettes as a grid of swatches, the automatic one first. Choosing one also removes
// the photo from the backdrop.
class PaletteGroup : public QWidget {
    Q_OBJECT

public:
    PaletteGroup(SettingsStore& store, const QFont& face, QWidget* parent = nullptr);

private:
    void add(qint64 index, class PaletteSwatch* swatch);
    void mark();

    SettingsStore& store_;
    QList<PaletteSwatch*> swatches_; // the automatic one, then the palettes by index
};

} // namespace morrowleaf
