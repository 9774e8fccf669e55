#pragma once

#include <QFile>
#include <QString>

namespace morrowleaf {

// Opens the regular file at `path` for reading; -1 if there is none or it may
// not be read. Pipes, devices, sockets and folders are refused at once: merely
// opening one of them could wait for ever. The caller closes it.
int openRegularFile(const QString& path);

// The same for `file`, which is without a buffer of its own.
bool openRegularFile(QFile& file, const QString& path);

} // namespace morrowleaf
