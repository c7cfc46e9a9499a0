#include "words/QuotedText.h"

#include "support/TextEncoding.h"
#include "support/VisibleText.h"

namespace kx {

std::string safeForSentence(std::string_view text) {
    constexpr std::size_t mostShownCharacters = 32;
    std::string_view rest = text;
    for (std::size_t count = 0; !rest.empty(); ++count) {
        if (count == mostShownCharacters) {
            return visibleText(text.substr(0, text.size() - rest.size())) + "…";
        }
        rest.remove_prefix(characterAtFrontOf(bytesOfText(rest)).length);
    }
    return visibleText(text);
}

} // namespace kx
