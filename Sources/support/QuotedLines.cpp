#include "support/QuotedLines.h"

#include <algorithm>

namespace kx {

std::string quotedLines(std::string_view text) {
    std::string quoted(text);
    std::ranges::replace(quoted, '\n', quotedLineFeed);
    return quoted;
}

std::string unquotedLines(std::string text) {
    std::ranges::replace(text, quotedLineFeed, '\n');
    return text;
}

} // namespace kx
