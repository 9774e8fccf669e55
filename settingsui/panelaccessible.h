#pragma once

namespace morrowleaf {

// Tells assistive programs what our own controls and groups of them are;
// once per process, repeated calls do nothing.
void installPanelAccessibility();

} // namespace morrowleaf
