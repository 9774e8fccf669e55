#pragma once

#include "textanim/shapedtext.h"
#include "textanim/textoutline.h"

namespace morrowleaf {

struct ShapedText::Data {
    TextOutline text;
};

} // namespace morrowleaf
