#include "support/QuotedLines.h"

namespace kx {

namespace {

// Nearly all texts have none of them, so the search is what counts.
void replaceEach(std::string& text, char byte, char replacement) {
    for (auto at = text.find(byte); at != std::string::npos; at = text.find(byte, at + 1)) {
        text[at] = replacement;
    }
}

} // namespace

std::string quotedLines(std::string_view text) {
    std::string quoted(text);
    replaceEach(quoted, '\n', quotedLineFeed);
    return quoted;
}

std::string unquotedLines(std::string text) {
    replaceEach(text, quotedLineFeed, '\n');
    return text;
}

} // namespace kx
