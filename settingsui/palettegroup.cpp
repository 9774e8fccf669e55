// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/palettegroup.h"

#include "look/palettes.h"
#include "settings/settingstable.h"
#include "settingsui/binding.h"
#include "settingsui/panelaccessible.h"
#include "settingsui/panelstyle.h"
#include "settingsui/swatch.h"

#include <QGridLayout>

#include <array>

namespace morrowleaf {

PaletteGroup::PaletteGroup(SettingsStore& store, const QFont& face, QWidget* parent)
    : QWidget(parent)
    , store_(store) {
    makeAccessibleGroup(*this, tr("Palette"));
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(PanelStyle::gutter);
    grid->setVerticalSpacing(PanelStyle::gutter);
    for (int column = 0; column < PanelStyle::paletteColumns; ++column) {
        grid->setColumnStretch(column, 1);
    }
    const std::array automatic{QColor(128, 128, 128, 153), QColor(128, 128, 128, 64)};
    //: The palette of the day, under a tile of 48 points
    add(-1, new PaletteSwatch(tr("Auto"), automatic, face, this));
    for (const Palette& palette : Palette::all()) {
        add(swatches_.size() - 1,
            new PaletteSwatch(palette.shownName(), palette.colors, face, this));
    }
    new Binding(store, K::palette, this, [this] { mark(); });
    new Binding(store, K::bgImage, this, [this] { mark(); });
}

void PaletteGroup::add(qint64 index, PaletteSwatch* swatch) {
    const int place = int(swatches_.size());
    swatches_.append(swatch);
    static_cast<QGridLayout*>(layout())->addWidget(swatch, place / PanelStyle::paletteColumns,
                                                   place % PanelStyle::paletteColumns);
    connect(swatch, &QAbstractButton::clicked, this, [this, index] {
        store_.set(K::palette, index);
        store_.set(K::bgImage, QString());
    });
}

void PaletteGroup::mark() {
    const bool photo = !store_.get(K::bgImage).isEmpty();
    const qint64 index = store_.get(K::palette);
    for (qsizetype i = 0; i < swatches_.size(); ++i) {
        swatches_[i]->setMarked(!photo && i - 1 == index);
    }
}

} // namespace morrowleaf
