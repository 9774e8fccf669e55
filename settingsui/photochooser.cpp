// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/photochooser.h"

#include "platform/filechooser.h"

#include <QApplication>
#include <QFileDialog>
#include <QImageReader>
#include <QKeyEvent>
#include <QStandardPaths>
#include <QWindow>

namespace morrowleaf {
namespace {

using namespace Qt::Literals::StringLiterals;

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
            patterns.append(u"*."_s + QString::fromLatin1(format));
            patterns.append(u"*."_s + QString::fromLatin1(format).toUpper());
        }
    }
    return {PhotoChooser::tr("Images") + " ("_L1 + patterns.join(u' ') + u')'};
}

// Passes Escape to the dialog while it is open, before other filters of the program see
// it.
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
            return false; // a dialog of the dialog's own gets the key first
        } else {
            dialog_->reject();
        }
        return true;
    }

private:
    QDialog* dialog_;
};

} // namespace

PhotoChooser::PhotoChooser(FileChooser& desktop, QWidget* parent)
    : QObject(parent)
    , desktop_(desktop) {}

void PhotoChooser::choose() {
    if (isOpen_) {
        return;
    }
    isOpen_ = true;
    emit opening();
    const FileQuestion question{
        .title = tr("Add a Photo"), .kindName = tr("Images"), .mimeTypes = mimeTypes()};
    QWidget& window = *static_cast<QWidget*>(parent())->window();
    const FileRequest* request = desktop_.ask(window, question);
    connect(request, &FileRequest::answered, this, [this](const FileAnswer& answer) {
        switch (answer.kind) {
        case FileAnswer::Kind::Chosen:
            return finish(answer.path);
        case FileAnswer::Kind::Cancelled:
            return finish(std::nullopt);
        case FileAnswer::Kind::Unavailable:
            return chooseWithQt();
        }
    });
}

void PhotoChooser::finish(const std::optional<QString>& path) {
    isOpen_ = false;
    emit closed();
    if (path) {
        emit picked(*path);
    }
}

void PhotoChooser::chooseWithQt() {
    // The dialog of a platform theme runs another toolkit in this process, which may end it,
    // and no flag of ours keeps that dialog in front. Its option would come too late: the
    // constructor makes the other dialog.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    // Without a parent, because the window manager may not know the overlay: its owner will be
    // the window that the manager knows.
    auto* dialog = new QFileDialog(nullptr, tr("Add a Photo"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    // The settings window, which may be open, stays above ordinary windows too.
    dialog->setWindowFlag(Qt::WindowStaysOnTopHint);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setOption(QFileDialog::HideNameFilterDetails);
    dialog->setNameFilters(nameFilters());
    dialog->setDirectory(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation));
    connect(dialog, &QFileDialog::finished, this, [this, dialog](int result) {
        const QStringList files = dialog->selectedFiles();
        finish(result == QDialog::Accepted && !files.isEmpty() ? std::optional(files.first())
                                                               : std::nullopt);
    });
    // The dialog closes with the window, unless a dialog of its own is open.
    const QWidget* window = static_cast<QWidget*>(parent())->window();
    connect(window, &QObject::destroyed, dialog, [dialog] {
        if (QApplication::activeModalWidget() == dialog) {
            dialog->hide();
            dialog->deleteLater();
        }
    });
    const QWindow* overlay = window->windowHandle();
    if (overlay != nullptr && overlay->transientParent() != nullptr) {
        dialog->winId();
        dialog->windowHandle()->setTransientParent(overlay->transientParent());
    }
    new EscapeCloses(dialog);
    // A window manager may give the keyboard to any window of the program when a question of
    // the dialog closes; the toolkit passes it on to what is modal for all of them.
    dialog->setWindowModality(Qt::ApplicationModal);
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}

} // namespace morrowleaf
