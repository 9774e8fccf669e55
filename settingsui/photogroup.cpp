// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/photogroup.h"

#include "photos/bgstore.h"
#include "settings/prefs.h"
#include "settings/settingstable.h"
#include "settingsui/binding.h"
#include "settingsui/panelaccessible.h"
#include "settingsui/panelstyle.h"
#include "settingsui/photochooser.h"
#include "settingsui/swatch.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QTimer>
#include <QVBoxLayout>

#include <array>

namespace morrowleaf {

using namespace std::chrono_literals;

namespace {

constexpr qsizetype mostOwn = 100; // of the user's own photos, shown
constexpr auto timeToAdd = 10s;    // after the last editor has closed

//: The names of the built-in photos for screen readers
[[maybe_unused]] constexpr std::array builtinNames{
    QT_TRANSLATE_NOOP("BuiltinPhoto", "Aurora"), QT_TRANSLATE_NOOP("BuiltinPhoto", "Dunes"),
    QT_TRANSLATE_NOOP("BuiltinPhoto", "Forest"), QT_TRANSLATE_NOOP("BuiltinPhoto", "Lake"),
    QT_TRANSLATE_NOOP("BuiltinPhoto", "Ridges"), QT_TRANSLATE_NOOP("BuiltinPhoto", "Sea")};

// The name of a built-in photo for screen readers: that of its file, capitalised and, if
// it is one of those above, translated.
QString spokenName(const QString& path) {
    QString name = QFileInfo(path).completeBaseName();
    if (!name.isEmpty()) {
        name[0] = name[0].toUpper();
    }
    return QCoreApplication::translate("BuiltinPhoto", qUtf8Printable(name));
}

} // namespace

Thumbnails::Thumbnails(BGStore& photos, QObject* parent)
    : QObject(parent)
    , photos_(photos) {}

QImage Thumbnails::picture(const QString& path, QSize size) {
    if (const auto known = thumbnails_.find(path);
        known != thumbnails_.end() && known->second.size == size) {
        return known->second.picture;
    }
    thumbnails_[path] = {
        size, {}, photos_.readers().decode(path, size, [=, this](const QImage& picture) {
            thumbnails_[path].picture = picture;
            emit ready(path);
        })};
    return {};
}

PhotoGroup::PhotoGroup(SettingsStore& store, BGStore& photos, PhotoChooser& chooser,
                       const QFont& face, QWidget* parent)
    : QWidget(parent)
    , store_(store)
    , photos_(photos)
    , awaitingAdds_(photos.awaitAdds(timeToAdd))
    , chooser_(chooser)
    , face_(face)
    , thumbnails_(new Thumbnails(photos, this))
    , builtins_(photos.builtins())
    , anchor_(new QWidget(this)) {
    anchor_->setFocusPolicy(Qt::TabFocus); // otherwise it has no position in the tab order
    anchor_->hide();
    makeAccessibleGroup(*this, tr("Your photo"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    connect(&chooser_, &PhotoChooser::picked, this, &PhotoGroup::addPhoto);
    connect(thumbnails_, &Thumbnails::ready, this, [this](const QString& path) {
        for (PhotoSwatch* swatch : std::as_const(swatches_)) {
            if (swatch->path() == path) {
                fetchPicture(*swatch);
            }
        }
    });
    new Binding(store_, K::customBGs, this, [this] { rebuild(); });
    new Binding(store_, K::bgImage, this, [this] { mark(); });
}

void PhotoGroup::rebuild() {
    const QStringList own = Prefs::customBGs(store_);
    const qsizetype focused = focusedCell();
    if (tiles_ != nullptr) {
        // The press that led here may still be executing in a cell.
        tiles_->hide();
        tiles_->setParent(nullptr);
        tiles_->deleteLater();
    }
    // Hidden until all cells are in it: each cell that appears alone is laid out alone.
    tiles_ = new QWidget(this);
    tiles_->hide();
    cells_.clear();
    swatches_.clear();
    for (const QString& path : std::as_const(builtins_)) {
        cells_.append(makeSwatch(path, spokenName(path)));
    }
    for (qsizetype i = 0; i < qMin(own.size(), mostOwn); ++i) {
        const QString& path = own[i];
        //: %1 is 1, 2 or 3
        PhotoSwatch* swatch = makeSwatch(path, tr("Your photo %1").arg(i + 1));
        //: %1 is 1, 2 or 3
        auto* cross = new RemoveButton(tr("Remove your photo %1").arg(i + 1), swatch);
        auto* corner = new QGridLayout(swatch);
        corner->setContentsMargins(2, 2, 2, 2);
        corner->addWidget(cross, 0, 0, Qt::AlignTop | Qt::AlignRight);
        connect(cross, &QAbstractButton::clicked, this, [this, path] { photos_.remove(path); });
        cells_.append(swatch);
    }
    if (own.size() < BGStore::limit) {
        auto* tile = new AddTile(face_, tiles_);
        connect(tile, &QAbstractButton::clicked, &chooser_, &PhotoChooser::choose);
        cells_.append(tile);
    }
    place();
    if (focused >= 0) {
        cells_[qMin(focused, cells_.size() - 1)]->setFocus(Qt::OtherFocusReason);
    }
    mark();
    fetchPictures();
}

// The index of the cell with the keyboard focus, or -1.
qsizetype PhotoGroup::focusedCell() const {
    const QWidget* at = window()->focusWidget();
    for (qsizetype i = 0; i < cells_.size(); ++i) {
        if (cells_[i] == at || cells_[i]->isAncestorOf(at)) {
            return i;
        }
    }
    return -1;
}

PhotoSwatch* PhotoGroup::makeSwatch(const QString& path, const QString& name) {
    auto* swatch = new PhotoSwatch(path, name, face_, tiles_);
    connect(swatch, &QAbstractButton::clicked, this,
            [this, path] { store_.set(K::bgImage, path); });
    swatches_.append(swatch);
    return swatch;
}

void PhotoGroup::place() {
    auto* grid = new QGridLayout(tiles_);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(PanelStyle::gutter);
    for (int column = 0; column < PanelStyle::photoColumns; ++column) {
        grid->setColumnStretch(column, 1);
    }
    // Tab moves from tile to tile, wherever this grid is in the panel.
    QWidget* before = anchor_;
    for (qsizetype i = 0; i < cells_.size(); ++i) {
        QWidget* cell = cells_[i];
        grid->addWidget(cell, int(i) / PanelStyle::photoColumns, int(i) % PanelStyle::photoColumns);
        setTabOrder(before, cell);
        before = cell;
        if (auto* cross = cell->findChild<RemoveButton*>()) {
            setTabOrder(cell, cross);
            before = cross;
        }
    }
    layout()->addWidget(tiles_);
    tiles_->show();
}

void PhotoGroup::mark() {
    const QString chosen = store_.get(K::bgImage);
    for (PhotoSwatch* swatch : std::as_const(swatches_)) {
        swatch->setMarked(swatch->path() == chosen);
    }
}

void PhotoGroup::fetchPictures() {
    for (PhotoSwatch* swatch : std::as_const(swatches_)) {
        fetchPicture(*swatch);
    }
}

void PhotoGroup::fetchPicture(PhotoSwatch& swatch) {
    // A tile has no width before the layout has run.
    if (isVisible() && swatch.width() > 1) {
        swatch.setPicture(thumbnails_->picture(swatch.path(), swatch.pictureSize()));
    }
}

void PhotoGroup::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    QTimer::singleShot(0, this, &PhotoGroup::fetchPictures);
}

bool PhotoGroup::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize ||
        event->type() == QEvent::ScreenChangeInternal) {
        QTimer::singleShot(0, this, &PhotoGroup::fetchPictures);
    }
    return QWidget::event(event);
}

void PhotoGroup::addPhoto(const QString& path) {
    // The copy may end after the editor has closed.
    photos_.add(path, [&store = store_](const std::optional<QString>& added) {
        if (added) {
            store.set(K::bgImage, *added);
        }
    });
}

} // namespace morrowleaf
