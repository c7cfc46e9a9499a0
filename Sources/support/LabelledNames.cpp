#include "support/LabelledNames.h"

#include "support/LocalizedText.h"
#include "support/TextComparison.h"

#include <array>

namespace kx {

namespace {

struct RankedLabel {
    std::string_view key;
    std::string_view rank;
};

constexpr std::array<RankedLabel, 10> rankedLabels{{
    {localizedKey("work"), "01"},
    {localizedKey("home"), "02"},
    {localizedKey("iPhone"), "03"},
    {localizedKey("mobile"), "04"},
    {localizedKey("main"), "05"},
    {localizedKey("home fax"), "06"},
    {localizedKey("work fax"), "07"},
    {localizedKey("pager"), "08"},
    {localizedKey("other"), "09"},
    {localizedKey("vacation"), "10"},
}};

std::string_view rankOfLabel(std::string_view tail) {
    for (const RankedLabel& label : rankedLabels) {
        if (caseInsensitiveBeginsWith(tail, localizedText(label.key))) {
            return label.rank;
        }
    }
    return tail;
}

} // namespace

std::string compareStringForCID(std::string_view text) {
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos) {
        return std::string(text);
    }
    std::string key(text.substr(0, colon));
    const std::size_t bracket = text.rfind('[');
    if (bracket != std::string_view::npos) {
        key += rankOfLabel(text.substr(bracket + 1));
    }
    return key;
}

std::weak_ordering compareCID(std::string_view text, std::string_view other) {
    return compareTexts(compareStringForCID(text), compareStringForCID(other));
}

} // namespace kx
