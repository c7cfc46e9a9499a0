#include "files/SpreadsheetText.h"

#include "addresses/CharacterClass.h"
#include "units/IdentityText.h"
#include "units/UnitParameter.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace kx {

namespace {

constexpr bool isLetter(char character) {
    const char lower = detail::lowered(character);
    return lower >= 'a' && lower <= 'z';
}

bool areDigits(std::string_view text) {
    return !text.empty() && std::ranges::all_of(text, isDigit);
}

bool areAlike(std::string_view left, std::string_view right) {
    return std::ranges::equal(left, right, {}, detail::lowered, detail::lowered);
}

template<std::size_t count>
bool isAmong(std::string_view text, const std::array<std::string_view, count>& words) {
    return std::ranges::any_of(words,
                               [text](std::string_view word) { return areAlike(text, word); });
}

// The first three letters of the months in English, German, French, Spanish and Italian, as far as
// they are letters of ASCII.
constexpr std::array<std::string_view, 29> months{
    "jan", "feb", "mar", "apr", "may", "jun", "jul", "aug", "sep", "oct",
    "nov", "dec", "mai", "okt", "dez", "avr", "jui", "ene", "abr", "ago",
    "dic", "gen", "mag", "giu", "lug", "set", "ott", "fev", "aou"};

constexpr std::array<std::string_view, 9> truthValues{
    "true", "false", "wahr", "falsch", "vrai", "faux", "falso", "verdadero", "vero"};

// "Jan", "January", "Sept."
bool isMonth(std::string_view text) {
    if (text.ends_with('.')) {
        text.remove_suffix(1);
    }
    return text.size() >= 3 && std::ranges::all_of(text, isLetter) &&
           isAmong(text.substr(0, 3), months);
}

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    for (;;) {
        const auto end = std::min(text.find(separator), text.size());
        parts.push_back(text.substr(0, end));
        if (end == text.size()) {
            return parts;
        }
        text.remove_prefix(end + 1);
    }
}

bool isNumberOfDate(std::string_view part) {
    part.remove_suffix(part.ends_with('.') ? 1 : 0); // "11. Jan"
    return areDigits(part) && part.size() <= 4;
}

// Two or three parts, of which one is a month's name, or numbers that only a date has in this form.
bool isDateOf(const std::vector<std::string_view>& parts, char separator) {
    if (parts.size() < 2 || parts.size() > 3) {
        return false;
    }
    const auto numbers = std::ranges::count_if(parts, isNumberOfDate);
    if (numbers + 1 == std::ssize(parts) && std::ranges::any_of(parts, isMonth)) {
        return true;
    }
    const bool hasYear = std::ranges::any_of(
        parts, [](std::string_view part) { return areDigits(part) && part.size() == 4; });
    return numbers == std::ssize(parts) &&
           (separator == '/' || (parts.size() == 3 && (separator == '-' || hasYear)));
}

bool isDate(std::string_view cell) {
    return std::ranges::any_of(std::string_view("-/. "), [cell](char separator) {
        return isDateOf(split(cell, separator), separator);
    });
}

std::string_view withoutSign(std::string_view text) {
    text.remove_prefix(text.starts_with('-') || text.starts_with('+') ? 1 : 0);
    return text;
}

// The digits before and behind a decimal sign.
bool isDecimalNumber(std::string_view text) {
    text = withoutSign(text);
    const auto sign = text.find_first_of(".,");
    return sign != std::string_view::npos && areDigits(text.substr(0, sign)) &&
           areDigits(text.substr(sign + 1));
}

bool isScientificNumber(std::string_view text) {
    const auto letter = text.find_first_of("eE");
    if (letter == std::string_view::npos) {
        return false;
    }
    const auto mantissa = text.substr(0, letter);
    return (areDigits(withoutSign(mantissa)) || isDecimalNumber(mantissa)) &&
           areDigits(withoutSign(text.substr(letter + 1)));
}

// Blanks that are not the blank of ASCII: those that break no line, and those of other widths.
constexpr std::array<std::string_view, 6> otherBlanks{"\u00A0", "\u2007", "\u2009",
                                                      "\u200A", "\u202F", "\u3000"};

bool hasOtherBlank(std::string_view text) {
    return std::ranges::any_of(otherBlanks, [text](std::string_view blank) {
        return text.find(blank) != std::string_view::npos;
    });
}

std::string withPlainBlanks(std::string_view text) {
    std::string plain(text);
    for (const std::string_view blank : otherBlanks) {
        for (auto place = plain.find(blank); place != std::string::npos;
             place = plain.find(blank, place)) {
            plain.replace(place, blank.size(), " ");
        }
    }
    return plain;
}

bool areGroupedDigits(std::string_view text) {
    const std::string plain = withPlainBlanks(text);
    return std::ranges::any_of(std::string_view(",.' "), [&plain](char separator) {
        const auto groups = split(plain, separator);
        return groups.size() > 1 && groups.front().size() <= 3 && areDigits(groups.front()) &&
               std::all_of(groups.begin() + 1, groups.end(), [](std::string_view group) {
                   return group.size() == 3 && areDigits(group);
               });
    });
}

bool isOctets(ValueForm form) {
    return form == ValueForm::serialNumber || form == ValueForm::hardwareAddress;
}

// A number that has lost what made it a value of this form.
std::optional<TableFault> damageOfDigits(std::string_view cell, ValueForm form) {
    if (!areDigits(cell)) {
        return std::nullopt;
    }
    if (isOctets(form) && cell.size() < 2 * identityLength) {
        return TableFault::lostZeros;
    }
    // Only an address whose last three numbers have three digits each looks like grouped digits.
    if (form == ValueForm::ipv4Address && cell.size() >= 10 && cell.size() <= 12) {
        return TableFault::lostDots;
    }
    return std::nullopt;
}

} // namespace

std::optional<TableFault> sightOfSpreadsheet(std::string_view cell) {
    if (cell.size() >= 3 && cell.find_first_not_of('#') == std::string_view::npos) {
        return TableFault::tooNarrow;
    }
    const bool isError =
        cell.size() >= 4 && cell.starts_with('#') && (cell.ends_with('!') || cell.ends_with('?'));
    const bool isNumberedError =
        (cell.starts_with("Err:") || cell.starts_with("ERR:")) && areDigits(cell.substr(4));
    constexpr std::array<std::string_view, 2> missing{"#N/A", "#NV"};
    return isError || isNumberedError || isAmong(cell, missing)
               ? std::optional(TableFault::spreadsheetError)
               : std::nullopt;
}

std::optional<TableFault> damageOfSpreadsheet(std::string_view cell, ValueForm form) {
    if (isScientificNumber(cell)) {
        return TableFault::scientificNotation;
    }
    if (const auto damage = damageOfDigits(cell, form)) {
        return damage;
    }
    if (isDate(cell)) {
        return TableFault::date;
    }
    if (areGroupedDigits(cell)) {
        return TableFault::groupedDigits;
    }
    if (isDecimalNumber(cell)) {
        return TableFault::decimalPlaces;
    }
    if (isAmong(cell, truthValues)) {
        return TableFault::truthValue;
    }
    if (form != ValueForm::unitID && cell.starts_with('\'')) {
        return TableFault::leadingApostrophe;
    }
    return hasOtherBlank(cell) ? std::optional(TableFault::otherBlank) : std::nullopt;
}

bool isKeptBySpreadsheets(std::string_view text) {
    if (areDigits(text)) {
        return text == "0" || (!text.starts_with('0') && text.size() <= 9);
    }
    if (text.empty() || !isLetter(text.front()) || text.ends_with(' ')) {
        return false;
    }
    const auto letters =
        static_cast<std::size_t>(std::ranges::find_if_not(text, isLetter) - text.begin());
    const bool isWithNumber = std::ranges::any_of(text, isDigit);
    const bool beginsWithMonth = letters >= 3 && isMonth(text.substr(0, letters));
    return !isAmong(text, truthValues) && !(beginsWithMonth && isWithNumber);
}

} // namespace kx
