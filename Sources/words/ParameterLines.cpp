#include "words/ParameterLines.h"

#include "support/LocalizedText.h"
#include "support/QuotedLines.h"

#include <algorithm>
#include <cstddef>

namespace kx {

ShownParameterNames shownParameterNames() {
    ShownParameterNames names;
    std::ranges::transform(parameterTable, names.begin(),
                           [](const auto& row) { return localizedText(row.name); });
    return names;
}

std::string linesOfParameters(const std::vector<ToldParameter>& items,
                              const ShownParameterNames& names) {
    // Enough for one line with a name of usual length.
    constexpr std::size_t usualLine = 48;

    std::string lines;
    lines.reserve(items.size() * usualLine);
    for (const ToldParameter& item : items) {
        const auto& parameter = item.parameter();
        lines += "\n\t";
        lines += parameter.has_value() ? std::string_view(names[indexOf(*parameter)])
                                       : tagOfUninterpretedItem;
        lines += ": ";
        const auto text = item.text().value_or("(null)");
        if (parameter == UnitParameter::unitID) {
            lines += quotedLines(text); // the only value that may have a line feed
        } else {
            lines += text;
        }
    }
    return lines;
}

} // namespace kx
