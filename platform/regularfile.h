// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

class QFile;
class QString;

namespace morrowleaf {

// Opens the regular file at `path` for reading into `file`, unbuffered. Returns false if
// there is no such file or it may not be read. Rejects pipes, devices, sockets and
// folders without blocking, which QFile::open() does not guarantee. Any thread.
[[nodiscard]] bool openRegularFile(QFile& file, const QString& path);

} // namespace morrowleaf
