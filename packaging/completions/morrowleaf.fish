# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

complete -c morrowleaf -f
complete -c morrowleaf -l settings -d 'open the settings window instead of showing the quotation'
complete -c morrowleaf -l register-login -d 'start the program at login, and exit'
complete -c morrowleaf -l selftest -d 'check the built-in quotations, and exit'
complete -c morrowleaf -l help -d 'print the options, and exit'
complete -c morrowleaf -l version -d 'print the version, and exit'
