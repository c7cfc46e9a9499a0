// The character classes that the address parsers share. They look at one byte and know nothing of
// locales: every byte outside ASCII is in no class.

#pragma once

namespace kx {

// Exactly "0" to "9".
constexpr bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

// Exactly "0" to "9", "A" to "F" and "a" to "f".
constexpr bool isHexDigit(char character) {
    return isDigit(character) || (character >= 'A' && character <= 'F') ||
           (character >= 'a' && character <= 'f');
}

// The value of a character for which isHexDigit() holds, 0 to 15.
constexpr unsigned hexDigitValue(char character) {
    if (isDigit(character)) {
        return static_cast<unsigned>(character - '0');
    }
    return static_cast<unsigned>(character - (character >= 'a' ? 'a' : 'A')) + 10U;
}

} // namespace kx
