#pragma once

#include "platform/mainscreen.h"

#include <memory>

namespace morrowleaf {

std::unique_ptr<MainScreen> makeX11MainScreen();

} // namespace morrowleaf
