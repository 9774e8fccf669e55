#include "quotes/graphemes.h"

#include <unicode/brkiter.h>
#include <unicode/utext.h>

#include <memory>

namespace morrowleaf {

bool hasMoreGraphemes(QStringView text, int limit) {
    if (text.size() <= limit) {
        return false;
    }
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::BreakIterator> breaks(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    UText units = UTEXT_INITIALIZER;
    utext_openUChars(&units, text.utf16(), text.size(), &status);
    if (U_FAILURE(status) != 0) {
        return true; // without the tables nothing is known to be short enough
    }
    breaks->setText(&units, status);
    const bool more = breaks->next(limit + 1) != icu::BreakIterator::DONE;
    utext_close(&units);
    return more;
}

} // namespace morrowleaf
