#include "units/UnitName.h"

#include "addresses/CharacterClass.h"
#include "units/IdentityText.h"

namespace kx {

namespace {

constexpr std::string_view unitIDPrefix = "id:";
constexpr std::size_t digitCount = 2 * identityLength;
constexpr std::size_t lengthWithSeparators = digitCount + identityLength - 1;

bool isSeparator(char character) {
    return character == ' ' || character == ':' || character == '-';
}

char upperCase(char digit) {
    return digit >= 'a' && digit <= 'f' ? static_cast<char>(digit - 'a' + 'A') : digit;
}

} // namespace

std::optional<std::string> digitsOfSixPairs(std::string_view typed) {
    const bool isSeparated = typed.size() == lengthWithSeparators && isSeparator(typed[2]);
    if (!isSeparated && typed.size() != digitCount) {
        return std::nullopt;
    }
    const std::size_t step = isSeparated ? 3 : 2;
    std::string digits;
    for (std::size_t i = 0; i < typed.size(); ++i) {
        if (isSeparated && i % step == 2) {
            if (typed[i] != typed[2]) {
                return std::nullopt;
            }
        } else if (isHexDigit(typed[i])) {
            digits += typed[i];
        } else {
            return std::nullopt;
        }
    }
    return digits;
}

std::string textOfSixPairs(std::string_view digits, char separator) {
    std::string text;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && i % 2 == 0) {
            text += separator;
        }
        text += upperCase(digits[i]);
    }
    return text;
}

std::optional<UnitName> unitNameForText(std::string_view typed) {
    if (typed.starts_with(unitIDPrefix)) {
        typed.remove_prefix(unitIDPrefix.size());
        return typed.empty() ? std::nullopt
                             : std::optional<UnitName>(UnitIDOfUnit{std::string(typed)});
    }
    const auto digits = digitsOfSixPairs(typed);
    if (!digits.has_value()) {
        return std::nullopt;
    }
    return SerialNumberOfUnit{textOfSixPairs(*digits, ' ')};
}

} // namespace kx
