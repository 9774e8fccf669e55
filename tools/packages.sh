# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# For ./dev, whose functions and variables it uses: the commands that make packages.
# shellcheck disable=SC2154 # $root is that of ./dev

# The date of the last release: packages are the same whenever they are built.
release_date() { dpkg-parsechangelog -l packaging/changelog -S Timestamp; }
version() { sed -n 's/^project(morrowleaf VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt; }
# copy_sources FOLDER: what git has or would add
copy_sources() {
    rm -rf "$1"
    mkdir -p "$1"
    git ls-files --cached --others --exclude-standard -z | tar -c --null -T - | tar -x -C "$1"
}

# check_hardening FOLDER: every program that is installed there
check_hardening() {
    find "$1" -type f \( -path '*/bin/*' -o -path '*/libexec/*' \) \
        -exec tests/tools/hardeningcheck.py {} +
}

package() {
    install build run package
    local tree
    tree=$root/build/debian/morrowleaf-$(version)
    rm -rf build/debian
    copy_sources "$tree"
    cp -r packaging/debian "$tree/debian"
    cp packaging/changelog "$tree/debian"
    # Debian's tools leave that file out.
    grep -vx ' \.gitignore' packaging/copyright >"$tree/debian/copyright"
    (cd "$tree" && dpkg-buildpackage --no-sign) >&2
    mkdir -p out
    lintian --allow-root --pedantic --fail-on error,warning,info,pedantic build/debian/*.changes
    dpkg-deb -x build/debian/morrowleaf_*.deb build/debian/root
    check_hardening build/debian/root
    cp build/debian/*.deb out/
    ls out/*.deb
}

# Compiles and installs what is not for one distribution to build/portable/NAME
portable() {
    install build run package
    # Qt's resources contain the times of their files, unless this one is given.
    SOURCE_DATE_EPOCH=$(release_date) build package all
    rm -rf build/portable
    DESTDIR=$root/build/portable cmake --install build/package --strip --prefix "/$1" >&2
    check_hardening build/portable
}

tarball() {
    local name
    name=morrowleaf-$(version)-$(uname -m)
    portable "$name"
    mkdir -p out
    # Without what only makes sense in the system's folders.
    rm -rf "build/portable/$name/share/dbus-1"
    tar -c -C build/portable --sort=name --mtime="@$(release_date)" --owner=0 --group=0 \
        --numeric-owner --mode=u+rw,go+r,go-w "$name" | xz -9 >"out/$name.tar.xz"
    ls "out/$name.tar.xz"
}

rpm() {
    install build run package
    local top
    top=$root/build/rpm
    rm -rf build/rpm
    mkdir -p "$top/SOURCES" out
    copy_sources "$top/morrowleaf-$(version)"
    tar -c -C "$top" --sort=name --mtime="@$(release_date)" --owner=0 --group=0 \
        "morrowleaf-$(version)" | xz >"$top/SOURCES/morrowleaf-$(version).tar.xz"
    # No system with RPM: its database knows no packages to build with.
    SOURCE_DATE_EPOCH=$(release_date) rpmbuild -bb --nodeps --define "_topdir $top" \
        --define "use_source_date_epoch_as_buildtime 1" --define "_buildhost localhost" \
        --define "clamp_mtime_to_source_date_epoch 1" packaging/rpm/morrowleaf.spec >&2
    cp "$top"/RPMS/*/*.rpm out/
    rpmlint -c packaging/rpm/rpmlint.toml out/*.rpm
    ls out/*.rpm
}

# Everything that names a version, against the one of CMakeLists.txt
check_versions() {
    local wanted=$1 date
    [ "$(version)" = "$wanted" ] || die "CMakeLists.txt has the version $(version)."
    [ "$(dpkg-parsechangelog -l packaging/changelog -S Version)" = "$wanted" ] ||
        die "packaging/changelog does not begin with $wanted."
    date=$(date -u -d "@$(release_date)" +%F)
    grep -q "<release version=\"$wanted\" date=\"$date\"/\?>" packaging/*.metainfo.xml ||
        die "The metainfo has no release $wanted of $date."
    grep -qE "^Version: +$wanted\$" packaging/rpm/morrowleaf.spec ||
        die "packaging/rpm/morrowleaf.spec has another version."
    grep -q -- "- $wanted-1\$" packaging/rpm/morrowleaf.spec ||
        die "packaging/rpm/morrowleaf.spec does not list the release $wanted."
    grep -q "^\.TH .*\"Morrowleaf $wanted\"" packaging/morrowleaf.1 ||
        die "The manual page is not about $wanted."
    grep -qx "## $wanted, $date" CHANGELOG.md ||
        die "CHANGELOG.md has no heading \"$wanted, $date\"."
}

# release VERSION: see docs/releasing.md
release() {
    [ $# -eq 1 ] || die "./dev release VERSION"
    install build run package
    [ -z "$(git status --porcelain)" ] || die "Not everything is committed."
    check_versions "$1"
    .ci/run
    rm -rf out
    local kind other
    for kind in package tarball rpm; do "$root/dev" "$kind"; done
    # Again, from a folder whose name has another length, at another time.
    other=$(mktemp -d)/another-folder-for-the-same-sources
    git clone --quiet . "$other"
    for kind in package tarball rpm; do "$other/dev" "$kind"; done
    diff -r out "$other/out" || die "The packages depend on more than their sources: $other"
    rm -rf "$(dirname "$other")"
    (cd out && sha256sum -- * >SHA256SUMS)
    ls out
}
