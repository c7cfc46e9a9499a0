#include "support/VisibleText.h"

#include "support/TextEncoding.h"

#include <algorithm>
#include <array>

namespace kx {

namespace {

struct Range {
    char32_t first;
    char32_t last;
};

// In ascending order.
constexpr std::array actingCharacters{
    Range{0x0000, 0x001F},   Range{0x007F, 0x009F},      Range{0x00AD, 0x00AD},
    Range{0x034F, 0x034F},   Range{0x061C, 0x061C},      Range{0x115F, 0x1160},
    Range{0x17B4, 0x17B5},   Range{0x180B, 0x180F},      Range{0x200B, 0x200F},
    Range{0x2028, 0x202E},   Range{0x2060, 0x206F},      Range{0x3164, 0x3164},
    Range{0xFE00, 0xFE0F},   Range{0xFEFF, 0xFEFF},      Range{0xFFA0, 0xFFA0},
    Range{0xFFF0, 0xFFFC},   Range{0x1BCA0, 0x1BCA3},    Range{0x1D173, 0x1D17A},
    Range{0xE0000, 0xE0FFF}, Range{0x110000, 0xFFFFFFFF}};

// Nearly all of a text consists of these, so they are looked at first.
bool isPlain(char character, Tabs tabs) {
    return (character >= ' ' && character <= '~') || (character == '\t' && tabs == Tabs::kept);
}

} // namespace

bool actsOnTheScreen(char32_t character) {
    const auto* const range =
        std::ranges::lower_bound(actingCharacters, character, {}, &Range::last);
    return range->first <= character;
}

std::string visibleText(std::string_view text, Tabs tabs) {
    std::string visible;
    visible.reserve(text.size());
    while (!text.empty()) {
        const auto end = std::ranges::find_if_not(
            text, [tabs](char character) { return isPlain(character, tabs); });
        const auto plain = static_cast<std::size_t>(end - text.begin());
        visible += text.substr(0, plain);
        text.remove_prefix(plain);
        if (text.empty()) {
            break;
        }
        const FrontCharacter front = characterAtFrontOf(bytesOfText(text));
        if (!actsOnTheScreen(front.code)) {
            visible += text.substr(0, front.length);
        } else {
            const bool isPair = front.length == 4;
            visible += markOfActingCharacter;
            visible += isPair ? markOfActingCharacter : "";
        }
        text.remove_prefix(front.length);
    }
    return visible;
}

} // namespace kx
