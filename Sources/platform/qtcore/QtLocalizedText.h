// Localized text from Qt's installed translators, in the one context "KXConfig".

#pragma once

#include "support/LocalizedText.h"

namespace kx {

class QtLocalizedText final : public LocalizedText {
public:
    std::string textForKey(std::string_view key) const override;
};

} // namespace kx
