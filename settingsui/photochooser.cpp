#include "settingsui/photochooser.h"

#include <QApplication>
#include <QFileDialog>
#include <QImageReader>
#include <QKeyEvent>
#include <QStandardPaths>

namespace morrowleaf {
namespace {

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
        } else {
            dialog_->reject();
        }
        return true;
    }

private:
    QDialog* dialog_;
};

} // namespace

PhotoChooser photoDialog(std::function<void()> lower, std::function<void()> restore) {
    return [lower = std::move(lower), restore = std::move(restore)](
               QWidget* /*window*/, std::function<void(std::optional<QString>)> picked) {
        // Without a parent: the picture's window may be one that no window
        // manager knows.
        auto* dialog = new QFileDialog(nullptr, QStringLiteral("Add a Photo"));
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->setFileMode(QFileDialog::ExistingFile);
        dialog->setNameFilters(nameFilters());
        dialog->setDirectory(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation));
        QObject::connect(dialog, &QFileDialog::finished, dialog,
                         [dialog, restore, picked = std::move(picked)](int result) {
                             if (restore) {
                                 restore();
                             }
                             const QStringList files = dialog->selectedFiles();
                             picked(result == QDialog::Accepted && !files.isEmpty()
                                        ? std::optional(files.first())
                                        : std::nullopt);
                         });
        new EscapeCloses(dialog);
        if (lower) {
            lower();
        }
        dialog->open();
        dialog->raise();
        dialog->activateWindow();
    };
}

} // namespace morrowleaf
