// Bytes as text, text as numbers, and messages with arguments.

#include "FuzzInput.h"
#include "support/SystemLog.h"
#include "support/TextEncoding.h"
#include "support/TextFormat.h"
#include "support/VisibleText.h"

#include <string>

using namespace kx;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ByteView bytes(data, size);
    const std::string_view text = textOfInput(data, size);

    const auto decoded = textFromUTF8(bytes);
    requireInvariant(decoded.has_value() == isValidUTF8(bytes),
                     "bytes have a text when they are valid");
    requireInvariant(!decoded || *decoded == text, "decoding changes no byte");

    const std::size_t whole = lengthOfWholeCharacters(bytes);
    requireInvariant(whole <= size && size - whole <= 3,
                     "only the front of one character is held back");
    requireInvariant(!decoded || whole == size, "a text has no such front");

    const auto ascii = asciiBytes(text);
    requireInvariant(!ascii || decoded, "ASCII is UTF-8");
    requireInvariant(!ascii || lengthInCharacters(text) == size, "an ASCII byte is one character");
    requireInvariant(lengthInCharacters(text) <= size, "no character is shorter than a byte");

    const std::string visible = visibleText(text);
    requireInvariant(isValidUTF8(bytesOfText(visible)), "a visible text is a text");
    requireInvariant(lengthInCharacters(visible) == lengthInCharacters(text),
                     "a visible text has as many units");
    for (const char32_t character : charactersOfText(visible)) {
        requireInvariant(!actsOnTheScreen(character), "nothing in a visible text acts");
    }
    for (const char32_t character : charactersOfText(escapedLine(text))) {
        requireInvariant(character == U'\t' || !actsOnTheScreen(character),
                         "nothing but a tab in a line of the system log acts");
    }

    const std::int32_t number = integerValue(text);
    requireInvariant(integerValue(std::to_string(number)) == number,
                     "a number's own text reads back");

    // One byte splits the input into a message and its arguments.
    const std::size_t half = size / 2;
    const std::string filled =
        filledText(text.substr(0, half), {text.substr(half), number, std::optional<std::string>()});
    requireInvariant(filled.size() <= 4 * size + 64,
                     "a message grows by its three arguments at most");
    return 0;
}
