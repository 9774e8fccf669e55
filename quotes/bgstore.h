#pragma once

#include <QHash>
#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

namespace morrowleaf {

class SettingsStore;

// A photo that can be decoded: where it is, how large, and how. Its pixels
// belong to whoever shows it.
struct Photo {
    QString path;
    QSize size; // pixels, after orientation

    // Decodes (anywhere, may be slow) so that the picture fills `target`
    // pixels, cropped about its centre, upright, in sRGB; null when that fails.
    QImage decodeFilling(QSize target) const;
};

// The photos that can be chosen: those shipped with the program and up to
// three of the user's own. A photo is named by its absolute path.
class BGStore {
public:
    static constexpr int limit = 3;

    BGStore(SettingsStore& store, QString builtinFolder, QString ownFolder);

    // Copies an image file into the own photos and lists it; the new path, or
    // nothing when the list is full, the copy fails or it is no usable image.
    // The copying runs in a worker; `done` is called on the main thread.
    void add(const QString& sourcePath, std::function<void(std::optional<QString>)> done);
    // Deletes the file, forgets the photo and, if it was chosen, the choice.
    void remove(const QString& path);
    QStringList builtins() const; // listed afresh, by file name
    // The same object on every call while it is readable; null otherwise.
    std::shared_ptr<const Photo> image(const QString& path);
    // A decode failed: the photo no longer counts as readable.
    void markUnreadable(const QString& path);

private:
    SettingsStore& store_;
    QString builtinFolder_;
    QString ownFolder_;
    QHash<QString, std::shared_ptr<const Photo>> cache_;
};

} // namespace morrowleaf
