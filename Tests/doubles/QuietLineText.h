// The text of the quiet line, taken apart into the warning in front and the rest.

#pragma once

#include "words/RequestTargetText.h"

#include <algorithm>
#include <string>

namespace kx {

// Empty when there is none.
inline std::string warningIn(const std::string& text) {
    for (const auto reach :
         {RequestReach::everybodyWithoutUnit, RequestReach::everybodyWithoutAddress,
          RequestReach::everybodyAtItsAddress}) {
        const std::string warning = warningOfTarget({.reach = reach});
        if (text.starts_with(warning)) {
            return warning;
        }
    }
    return "";
}

inline std::string withoutWarning(const std::string& text) {
    const std::size_t length = warningIn(text).size();
    return length == 0 ? text : text.substr(std::min(length + 1, text.size()));
}

} // namespace kx
