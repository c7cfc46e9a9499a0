#include "translations/Translations.h"

#include <algorithm>
#include <cstdlib>

namespace kx {

namespace {

constexpr std::string_view english = "en";

// The value of the variable; empty when it is not set.
std::string_view variable(const char* name) {
    const char* const value = std::getenv(name); // no other thread sets one
    return value != nullptr ? value : "";
}

// "de" of "de-AT" and of "de_AT.UTF-8@euro".
std::string_view languageOf(std::string_view name) {
    return name.substr(0, name.find_first_of("-_.@"));
}

} // namespace

Translation firstTranslation(const std::vector<std::string>& languages) {
    for (const std::string& name : languages) {
        const auto found =
            std::ranges::find(translations(), languageOf(name), &Translation::language);
        if (found != translations().end()) {
            return *found;
        }
        if (languageOf(name) == english) {
            break;
        }
    }
    return {.language = english, .entries = {}};
}

std::vector<std::string> languagesOfUser() {
    std::vector<std::string> languages;
    std::string_view listed = variable("LANGUAGE");
    while (!listed.empty()) {
        const std::size_t end = std::min(listed.find(':'), listed.size());
        if (end > 0) {
            languages.emplace_back(listed.substr(0, end));
        }
        listed.remove_prefix(std::min(end + 1, listed.size()));
    }
    for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (languages.empty() && !variable(name).empty()) {
            languages.emplace_back(variable(name));
        }
    }
    return languages;
}

} // namespace kx
