#include "platform/linux/KeyPattern.h"

#include "System Configuration/ConfigurationKeys.h"

#include <span>

namespace kx {

std::optional<KeyPattern> KeyPattern::parse(std::string_view text) {
    KeyPattern pattern;
    while (true) {
        const auto construct = text.find(kSCCompAnyRegex);
        const auto literal = text.substr(0, construct);
        if (literal.find_first_of("\\^$.|?*+()[]{}") != std::string_view::npos) {
            return std::nullopt;
        }
        pattern._literals.emplace_back(literal);
        if (construct == std::string_view::npos) {
            return pattern;
        }
        text.remove_prefix(construct + kSCCompAnyRegex.size());
    }
}

// Each literal is taken at the first place where it fits behind the one before it. The later
// literals then have the most room. The last literal has to end the key.
bool KeyPattern::matches(std::string_view key) const {
    if (!key.starts_with(_literals.front())) {
        return false;
    }
    key.remove_prefix(_literals.front().size());
    for (const auto& literal : std::span(_literals).subspan(1)) {
        if (key.size() <= literal.size()) {
            return false;
        }
        const bool isLast = &literal == &_literals.back();
        const auto skipped =
            key.substr(0, isLast ? key.size() - literal.size() : key.find(literal, 1));
        key.remove_prefix(skipped.size());
        if (skipped.find('/') != std::string_view::npos || !key.starts_with(literal)) {
            return false;
        }
        key.remove_prefix(literal.size());
    }
    return key.empty();
}

} // namespace kx
