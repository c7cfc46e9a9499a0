#include "words/QuotedText.h"

#include "support/TextEncoding.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kx {

namespace {

bool isContinuationByte(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

// Characters that would break the line, or turn the rest of it around.
constexpr std::array<std::string_view, 15> layoutCharacters{
    "\u0085", "\u061C", "\u200E", "\u200F", "\u2028", "\u2029", "\u202A", "\u202B",
    "\u202C", "\u202D", "\u202E", "\u2066", "\u2067", "\u2068", "\u2069"};

bool isShownAsItIs(std::string_view character) {
    const auto byte = static_cast<unsigned char>(character.front());
    return byte >= 0x20U && byte != 0x7FU &&
           std::ranges::find(layoutCharacters, character) == layoutCharacters.end();
}

// The length in bytes of the character in front of a text that is not empty.
std::size_t lengthOfCharacter(std::string_view text) {
    std::size_t length = 1;
    while (length < text.size() && isContinuationByte(text[length])) {
        ++length;
    }
    return length;
}

} // namespace

std::string safeForSentence(std::string_view text, std::size_t mostCharacters) {
    const bool isText = isValidUTF8(bytesOfText(text)); // if not, each byte is a character
    std::string shown;
    for (std::size_t count = 0; !text.empty(); ++count) {
        if (count == mostCharacters) {
            return shown + "…";
        }
        const auto character = text.substr(0, isText ? lengthOfCharacter(text) : 1);
        shown += isShownAsItIs(character) ? character : "\uFFFD";
        text.remove_prefix(character.size());
    }
    return shown;
}

} // namespace kx
