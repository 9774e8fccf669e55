// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/viewsettings.h"
#include "settings/prefs.h"
#include "settings/settingsdocument.h"
#include "settings/settingsstore.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace morrowleaf;

namespace {

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

void readAll(const SettingsStore& store) {
    const ViewSettings view = readViewSettings(store);
    for (const double number :
         {view.sizeScale, view.vignette, view.transparency, Prefs::dismissSeconds(store)}) {
        require(std::isfinite(number));
    }
    const double scale = usableSizeScale(view.sizeScale);
    require(scale >= 0.1 && scale <= 16);
    viewPalette(view, false, {0, {}});
    backdropFor(view, Palette::photo(), true);
    Prefs::customBGs(store);
    Prefs::source(store);
    Prefs::frequency(store);
    Prefs::fontDesign(store);
}

} // namespace

// Any settings file is either refused or read: what is written then reads the same, and
// every setting has a value that can be used.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray text(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    auto document = SettingsDocument::parse(text);
    if (!document) {
        return 0;
    }
    const auto again = SettingsDocument::parse(document->text());
    require(again && *again == *document && again->values() == document->values());
    SettingsStore store;
    registerAppDefaults(store);
    store.replaceStored(document->values());
    readAll(store);
    resetAppearance(store);
    readAll(store);
    for (auto value = store.stored().begin(); value != store.stored().end(); ++value) {
        document->set(value.key(), value.value());
    }
    const auto merged = SettingsDocument::parse(document->text());
    require(merged && merged->values() == document->values());
    return 0;
}
