#pragma once

#include "platform/beeper.h"

#include <memory>

namespace morrowleaf {

std::unique_ptr<Beeper> makeDesktopBeeper();

} // namespace morrowleaf
