// Text is UTF-8 in std::string. These are the only conversions between text and bytes or numbers
// that the system needs. All functions are pure and may be called from any thread.

#pragma once

#include "support/ByteRange.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

// Whether the bytes are well-formed UTF-8 (RFC 3629): no overlong forms, no surrogates, nothing
// above U+10FFFF. Zero bytes are characters like any other.
bool isValidUTF8(ByteView bytes);

// The text that the bytes encode, or absent when they are not well-formed UTF-8.
std::optional<std::string> textFromUTF8(ByteView bytes);

// The length of `bytes` without an unfinished UTF-8 sequence at their end that the next bytes may
// complete. The bytes before it may still be ill-formed.
std::size_t lengthOfWholeCharacters(ByteView bytes);

// The bytes of a text as it stands, without terminator.
ByteView bytesOfText(std::string_view text);

// The ASCII encoding of a text, or absent when any character lies above U+007F. There is no lossy
// substitution.
std::optional<Bytes> asciiBytes(std::string_view text);

// The length of a text in UTF-16 units, the measure of every "length in characters" of this system.
// A byte that is not part of a well-formed sequence counts as one unit.
std::size_t lengthInCharacters(std::string_view text);

struct FrontCharacter {
    char32_t code;
    std::size_t length; // bytes
};

// The first character of bytes that are not empty. A byte that is not part of a well-formed
// sequence counts as one character, with the code that charactersOfText() tells.
FrontCharacter characterAtFrontOf(ByteView bytes);

// The characters of a text. A byte that is not part of a well-formed sequence counts as one
// character, with a code beyond the last of Unicode: 0x110000 plus the byte.
std::u32string charactersOfText(std::string_view text);

// The decimal integer at the beginning of a text: leading white space is skipped, one sign counts,
// digits are read as far as they go. No digits give 0; a value outside 32 bits saturates at the
// nearest end.
std::int32_t integerValue(std::string_view text);

} // namespace kx
