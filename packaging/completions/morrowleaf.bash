# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

complete -W "--settings --register-login --selftest --help --version" morrowleaf
