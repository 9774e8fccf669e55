#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# Signs Morrowleaf.app, puts it into a disk image and has the image notarised.
#
#     release.sh Morrowleaf.app Morrowleaf.dmg
#
#     MORROWLEAF_IDENTITY   a "Developer ID Application: …" in the keychain, or - for a
#                           signature that is valid on this machine alone
#     MORROWLEAF_PROFILE    what `xcrun notarytool store-credentials` was told to keep the
#                           account under; without it the image is not notarised
#
# It needs the command-line tools of Xcode. Nothing in the program needs an entitlement.
set -euo pipefail

app=$1
image=$2
identity=${MORROWLEAF_IDENTITY:?names the certificate to sign with, or is -}

say() { printf '%s\n' "$*" >&2; }

options=(--force --sign "$identity")
if [ "$identity" != - ]; then
    # Notarisation asks for these. The hardened runtime refuses libraries that no team has
    # signed, which is all of them in the other case.
    options+=(--options runtime --timestamp)
fi

# From the inside out: a signature covers those of everything inside.
find "$app/Contents" -type f \( -name '*.dylib' -o -perm -u+x \) ! -path '*/Contents/MacOS/*' \
    -exec codesign "${options[@]}" {} +
if [ -d "$app/Contents/Frameworks" ]; then
    find "$app/Contents/Frameworks" -maxdepth 1 -name '*.framework' \
        -exec codesign "${options[@]}" {} +
fi
find "$app/Contents/MacOS" -type f ! -name Morrowleaf -exec codesign "${options[@]}" {} +
codesign "${options[@]}" "$app"
codesign --verify --deep --strict --verbose=2 "$app"

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cp -R "$app" "$folder/"
ln -s /Applications "$folder/Applications"
hdiutil create -volname Morrowleaf -srcfolder "$folder" -format UDZO -ov "$image"
codesign --force --sign "$identity" "$image"

if [ -z "${MORROWLEAF_PROFILE:-}" ]; then
    say "$image is not notarised: MORROWLEAF_PROFILE is not set."
    exit 0
fi
xcrun notarytool submit "$image" --keychain-profile "$MORROWLEAF_PROFILE" --wait
xcrun stapler staple "$image"
spctl --assess --type open --context context:primary-signature --verbose "$image"
