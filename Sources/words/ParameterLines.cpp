#include "words/ParameterLines.h"

#include "support/LocalizedText.h"
#include "support/QuotedLines.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace kx {

namespace {

std::string lineStart(std::string_view name) {
    return "\n\t" + std::string(name) + ": ";
}

} // namespace

ParameterLineStarts parameterLineStarts() {
    ParameterLineStarts starts;
    std::ranges::transform(parameterTable, starts.begin(),
                           [](const auto& row) { return lineStart(localizedText(row.name)); });
    return starts;
}

std::string linesOfParameters(const std::vector<ToldParameter>& items,
                              const ParameterLineStarts& starts) {
    // Enough for one line with a name of usual length.
    constexpr std::size_t usualLine = 48;

    std::string lines;
    lines.reserve(items.size() * usualLine);
    for (const ToldParameter& item : items) {
        if (item.parameter.has_value()) {
            lines += starts[indexOf(*item.parameter)];
        } else {
            lines += lineStart(tagOfUninterpretedItem);
        }
        const auto text = item.text.view().value_or("(null)");
        if (item.parameter == UnitParameter::unitID) {
            lines += quotedLines(text); // the only value that may have a line feed
        } else {
            lines += text;
        }
    }
    return lines;
}

} // namespace kx
