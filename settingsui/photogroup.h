// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QWidget>

namespace morrowleaf {

class BGStore;
class PhotoChooser;
class PhotoSwatch;
class SettingsStore;
class Thumbnails;

// The photos as a grid of swatches: the built-in ones, the user's own, and a tile that
// adds one unless the list is full.
class PhotoGroup : public QWidget {
    Q_OBJECT

public:
    // The referenced objects must outlive the group.
    PhotoGroup(SettingsStore& store, BGStore& photos, PhotoChooser& chooser, const QFont& face,
               QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;
    bool event(QEvent* event) override;

private:
    void rebuild();
    qsizetype focusedCell() const;
    PhotoSwatch* makeSwatch(const QString& path, const QString& name);
    void place();
    void mark();
    void fetchPictures();
    void addPhoto(const QString& path);

    SettingsStore& store_;
    BGStore& photos_;
    PhotoChooser& chooser_;
    QFont face_;
    Thumbnails* thumbnails_;
    QStringList builtins_;
    QWidget* anchor_; // hidden; keeps the group's position in the tab order
    QStringList customBGs_;
    QList<QWidget*> cells_;
    QList<PhotoSwatch*> swatches_;
};

} // namespace morrowleaf
