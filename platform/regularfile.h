// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

class QFile;
class QString;

namespace morrowleaf {

// Opens the regular file at `path` for reading into `file`, unbuffered.
// Returns false where no such file exists or it may not be read. Pipes, devices,
// sockets and folders are rejected without blocking, which QFile::open() does
// not guarantee. Any thread.
[[nodiscard]] bool openRegularFile(QFile& file, const QString& path);

} // namespace morrowleaf
