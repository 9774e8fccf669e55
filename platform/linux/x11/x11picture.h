#pragma once

#include "platform/desktoppicture.h"

#include <memory>

namespace morrowleaf {

std::unique_ptr<DesktopPicture> makeX11Picture();

} // namespace morrowleaf
