// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

class QFile;
class QString;

namespace morrowleaf {

// Opens the regular file at `path` for reading, without a buffer; false if
// there is none or it may not be read. Pipes, devices, sockets and folders are
// refused at once: merely opening one of them could wait for ever.
bool openRegularFile(QFile& file, const QString& path);

} // namespace morrowleaf
