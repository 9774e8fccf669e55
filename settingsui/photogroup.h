// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/readers.h"

#include <QFont>
#include <QImage>
#include <QString>
#include <QWidget>

#include <memory>
#include <unordered_map>

namespace morrowleaf {

class BGStore;
class PhotoChooser;
class PhotoSwatch;
class SettingsStore;

// Small pictures of photos, decoded by a reader program and cached at the exact size in
// which they are drawn. One that cannot be decoded is not tried again. Main thread.
class Thumbnails : public QObject {
    Q_OBJECT

public:
    explicit Thumbnails(BGStore& photos, QObject* parent = nullptr);

    // The picture that fills `size` device pixels, or null. If it is null, ready() follows
    // once the picture has been decoded.
    QImage picture(const QString& path, QSize size);

signals:
    void ready(const QString& path);

private:
    struct Thumbnail {
        QSize size;
        QImage picture; // null while it is being decoded, and if that failed
        Reading decoding;
    };

    BGStore& photos_;
    std::unordered_map<QString, Thumbnail> thumbnails_; // by path
};

// The photos as a grid of swatches: the built-in ones, the user's own (of a longer list the
// first 100), and a tile that adds one unless the list is full.
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
    void fetchPicture(PhotoSwatch& swatch);
    void addPhoto(const QString& path);

    SettingsStore& store_;
    BGStore& photos_;
    std::shared_ptr<void> awaitingAdds_;
    PhotoChooser& chooser_;
    QFont face_;
    Thumbnails* thumbnails_;
    QStringList builtins_;
    QWidget* anchor_;          // hidden; keeps the group's position in the tab order
    QWidget* tiles_ = nullptr; // holds the cells; replaced as a whole
    QList<QWidget*> cells_;
    QList<PhotoSwatch*> swatches_;
};

} // namespace morrowleaf
