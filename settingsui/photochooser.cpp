// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/photochooser.h"

#include "platform/filechooser.h"

#include <QApplication>
#include <QFileDialog>
#include <QImageReader>
#include <QKeyEvent>
#include <QStandardPaths>

namespace morrowleaf {
namespace {

constexpr QLatin1StringView title{"Add a Photo"};

QStringList mimeTypes() {
    QStringList types;
    for (const QByteArray& type : QImageReader::supportedMimeTypes()) {
        if (!type.startsWith("image/svg")) {
            types.append(QString::fromLatin1(type));
        }
    }
    return types;
}

QStringList nameFilters() {
    QStringList patterns;
    for (const QByteArray& format : QImageReader::supportedImageFormats()) {
        if (!format.startsWith("svg")) {
            patterns.append(QStringLiteral("*.") + QString::fromLatin1(format));
            patterns.append(QStringLiteral("*.") + QString::fromLatin1(format).toUpper());
        }
    }
    return {QStringLiteral("Images (%1)").arg(patterns.join(QLatin1Char(' ')))};
}

// Escape belongs to the dialog while it is open, before anything else in the
// program that waits for it.
class EscapeCloses : public QObject {
public:
    explicit EscapeCloses(QDialog* dialog)
        : QObject(dialog)
        , dialog_(dialog) {
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() != QEvent::KeyPress ||
            static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape) {
            return false;
        }
        if (QWidget* popup = QApplication::activePopupWidget()) {
            popup->close();
        } else if (QApplication::activeModalWidget() != dialog_) {
            return false; // a question of the dialog's own, which it waits for
        } else {
            dialog_->reject();
        }
        return true;
    }

private:
    QDialog* dialog_;
};

using Picked = std::function<void(std::optional<QString>)>;

void askByToolkit(const QWidget& window, Picked picked) {
    // Without a parent: the picture's window may be one that no window
    // manager knows.
    auto* dialog = new QFileDialog(nullptr, title);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    // The settings' window, which may be open, stays above ordinary ones too.
    dialog->setWindowFlag(Qt::WindowStaysOnTopHint);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setOption(QFileDialog::HideNameFilterDetails);
    dialog->setNameFilters(nameFilters());
    dialog->setDirectory(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation));
    QObject::connect(
        dialog, &QFileDialog::finished, dialog, [dialog, picked = std::move(picked)](int result) {
            const QStringList files = dialog->selectedFiles();
            picked(result == QDialog::Accepted && !files.isEmpty() ? std::optional(files.first())
                                                                   : std::nullopt);
        });
    // It goes without an answer, for whom it would be has gone; but not while
    // it waits for the answer to a question of its own.
    QObject::connect(&window, &QObject::destroyed, dialog, [dialog] {
        if (QApplication::activeModalWidget() == dialog) {
            dialog->hide();
            dialog->deleteLater();
        }
    });
    new EscapeCloses(dialog);
    dialog->open();
    dialog->raise();
    dialog->activateWindow();
}

} // namespace

PhotoChooser photoDialog(FileChooser& desktop, std::function<void()> lower,
                         std::function<void()> restore) {
    return [&desktop, lower = std::move(lower), restore = std::move(restore)](QWidget* window,
                                                                              Picked picked) {
        const Picked finish = [restore,
                               picked = std::move(picked)](const std::optional<QString>& path) {
            if (restore) {
                restore();
            }
            picked(path);
        };
        if (lower) {
            lower();
        }
        const FileQuestion question{
            .title = title, .kindName = QStringLiteral("Images"), .mimeTypes = mimeTypes()};
        desktop.ask(*window, question, [finish, window](const FileAnswer& answer) {
            switch (answer.kind) {
            case FileAnswer::Kind::Chosen:
                return finish(answer.path);
            case FileAnswer::Kind::Cancelled:
                return finish(std::nullopt);
            case FileAnswer::Kind::Unavailable:
                return askByToolkit(*window, finish);
            }
        });
    };
}

} // namespace morrowleaf
