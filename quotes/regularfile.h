#pragma once

#include <QFile>
#include <QString>

namespace morrowleaf {

// Opens `file` for reading at `path` if a regular file stands there. Pipes,
// devices, sockets and folders are refused at once: merely opening one of
// them could wait for ever.
bool openRegularFile(QFile& file, const QString& path);

} // namespace morrowleaf
