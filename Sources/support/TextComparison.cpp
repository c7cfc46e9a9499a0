#include "support/TextComparison.h"

#include "support/TextEncoding.h"
#include "support/UnicodeTables.h"

#include <algorithm>
#include <string>

namespace kx {

namespace {

std::uint8_t combiningClass(char32_t character) {
    const auto ranges = combiningClasses();
    const auto range = std::ranges::lower_bound(ranges, character, {}, &CombiningClassRange::last);
    return range != ranges.end() && range->first <= character ? range->combiningClass : 0;
}

bool appendMapping(std::span<const CharacterMapping> table, char32_t character,
                   std::u32string& result) {
    const auto mapping = std::ranges::lower_bound(table, character, {}, &CharacterMapping::from);
    if (mapping == table.end() || mapping->from != character) {
        return false;
    }
    for (const char32_t part : mapping->to) {
        if (part != 0) {
            result += part;
        }
    }
    return true;
}

// A syllable is a leading consonant, a vowel and perhaps a trailing consonant, by the formula of
// the Unicode Standard, section 3.12.
bool appendHangulParts(char32_t character, std::u32string& result) {
    constexpr char32_t firstSyllable = 0xAC00;
    constexpr char32_t lastSyllable = 0xD7A3;
    constexpr char32_t firstLeading = 0x1100;
    constexpr char32_t firstVowel = 0x1161;
    constexpr char32_t beforeFirstTrailing = 0x11A7;
    constexpr char32_t vowels = 21;
    constexpr char32_t trailings = 28; // includes the case of none
    if (character < firstSyllable || character > lastSyllable) {
        return false;
    }
    const char32_t index = character - firstSyllable;
    result.push_back(firstLeading + index / (vowels * trailings));
    result.push_back(firstVowel + index / trailings % vowels);
    if (index % trailings != 0) {
        result.push_back(beforeFirstTrailing + index % trailings);
    }
    return true;
}

// Orders the marks that follow one character by their classes. Marks of one class keep their order.
void orderCombiningMarks(std::u32string& characters) {
    const auto isMark = [](char32_t character) { return combiningClass(character) != 0; };
    auto begin = std::ranges::find_if(characters, isMark);
    while (begin != characters.end()) {
        const auto end = std::find_if_not(begin, characters.end(), isMark);
        std::ranges::stable_sort(begin, end, {}, combiningClass);
        begin = std::find_if(end, characters.end(), isMark);
    }
}

std::u32string canonicallyDecomposed(std::u32string_view characters) {
    std::u32string result;
    result.reserve(characters.size());
    for (const char32_t character : characters) {
        if (!appendMapping(canonicalDecompositions(), character, result) &&
            !appendHangulParts(character, result)) {
            result += character;
        }
    }
    orderCombiningMarks(result);
    return result;
}

// The form of canonical caseless matching (the Unicode Standard, definition D145). The result is in
// canonical order as well: no folding has a mark, and of the marks only the last one folds.
std::u32string folded(std::u32string_view characters) {
    std::u32string result;
    for (const char32_t character : canonicallyDecomposed(characters)) {
        if (!appendMapping(caseFoldings(), character, result)) {
            result += character;
        }
    }
    return result;
}

} // namespace

std::weak_ordering compareTexts(std::string_view text, std::string_view other) {
    return canonicallyDecomposed(charactersOfText(text)) <=>
           canonicallyDecomposed(charactersOfText(other));
}

bool caseInsensitiveIsEqualToString(std::string_view text, std::string_view other) {
    return folded(charactersOfText(text)) == folded(charactersOfText(other));
}

bool caseInsensitiveBeginsWith(std::string_view text, std::string_view prefix) {
    const std::u32string wanted = folded(charactersOfText(prefix));
    const std::u32string all = charactersOfText(text);
    // Folding makes no text shorter, so a longer beginning cannot be equal.
    const std::size_t longest = std::min(all.size(), wanted.size());
    for (std::size_t length = 1; length <= longest; ++length) {
        const bool splitsCharacter = length < all.size() && combiningClass(all[length]) != 0;
        if (!splitsCharacter && folded(std::u32string_view(all).substr(0, length)) == wanted) {
            return true;
        }
    }
    return false;
}

} // namespace kx
