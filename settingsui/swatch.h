// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractButton>
#include <QImage>

#include <span>

namespace morrowleaf {

// A tile that chooses something when pressed. The settings decide whether it is marked,
// not the press itself.
class Swatch : public QAbstractButton {
    Q_OBJECT

public:
    Swatch(const QString& name, const QFont& face, QWidget* parent = nullptr);

    bool isMarked() const { return marked_; }
    void setMarked(bool marked);
    // Smaller than usual where the caption would be wider than its tile.
    QFont captionFont() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(const QPoint& pos) const override { return rect().contains(pos); }
    void paintEvent(QPaintEvent* event) override;
    // The tile, in the widget's coordinates.
    QRectF tile() const;
    virtual void paintTile(QPainter& painter, const QRectF& tile) = 0;
    virtual bool hasCaption() const { return false; }

private:
    QFont face_;
    bool marked_ = false;
};

// A gradient from the top leading to the bottom trailing corner, with its name beneath.
class PaletteSwatch : public Swatch {
    Q_OBJECT

public:
    PaletteSwatch(const QString& name, std::span<const QColor> colors, const QFont& face,
                  QWidget* parent = nullptr);

protected:
    void paintTile(QPainter& painter, const QRectF& tile) override;
    bool hasCaption() const override { return true; }

private:
    QGradientStops stops_;
};

// Shows a photo, or a plain tile until its picture is set.
class PhotoSwatch : public Swatch {
    Q_OBJECT

public:
    PhotoSwatch(const QString& path, const QString& name, const QFont& face,
                QWidget* parent = nullptr);

    const QString& path() const { return path_; }
    void setPicture(const QImage& picture); // of the tile's size in device pixels
    bool hasPicture() const { return !picture_.isNull(); }
    QSize pictureSize() const; // device pixels

protected:
    void paintTile(QPainter& painter, const QRectF& tile) override;

private:
    QString path_;
    QImage picture_;
};

// The tile that adds a photo.
class AddTile : public Swatch {
    Q_OBJECT

public:
    explicit AddTile(const QFont& face, QWidget* parent = nullptr);

protected:
    void paintTile(QPainter& painter, const QRectF& tile) override;
};

// The small cross at the corner of one of the user's own photos.
class RemoveButton : public QAbstractButton {
    Q_OBJECT

public:
    explicit RemoveButton(const QString& name, QWidget* parent = nullptr);
    QSize sizeHint() const override { return {18, 18}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace morrowleaf
