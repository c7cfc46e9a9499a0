// Localized texts whose translations the test writes.

#pragma once

#include "support/LocalizedText.h"

#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace kx {

class ScriptedLocalizedText final : public LocalizedText {
public:
    void setTranslation(std::string key, std::string translation) {
        _translations[std::move(key)] = std::move(translation);
    }

    std::string textForKey(std::string_view key) const override {
        const auto found = _translations.find(key);
        return found != _translations.end() ? found->second : std::string(key);
    }

private:
    std::map<std::string, std::string, std::less<>> _translations;
};

} // namespace kx
