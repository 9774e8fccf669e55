#pragma once

namespace morrowleaf {

// Tells assistive programs what the editor's own controls are; once per
// process, repeated calls do nothing.
void installPanelAccessibility();

} // namespace morrowleaf
