#include "support/QuotedLines.h"

#include <cstddef>

namespace kx {

namespace {

// `at` is the first place of the byte.
void replaceEach(std::string& text, std::size_t at, char byte, char replacement) {
    for (; at != std::string::npos; at = text.find(byte, at)) {
        text[at] = replacement;
    }
}

} // namespace

// Nearly all texts have no line feed, so the search is what counts. The given text is searched,
// because the processor waits when it searches a copy that it has just made.
std::string quotedLines(std::string_view text) {
    const std::size_t first = text.find('\n');
    std::string quoted(text);
    replaceEach(quoted, first, '\n', quotedLineFeed);
    return quoted;
}

std::string unquotedLines(std::string text) {
    replaceEach(text, text.find(quotedLineFeed), quotedLineFeed, '\n');
    return text;
}

} // namespace kx
