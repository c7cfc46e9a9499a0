// Localized texts that show that they were looked up: each is its key in angle brackets.
//
// It is the process's source from its construction to its destruction, and then restores the
// earlier one.

#pragma once

#include "support/LocalizedText.h"

#include <string>
#include <string_view>

namespace kx {

class MarkedLocalizedText final : public LocalizedText {
public:
    MarkedLocalizedText()
        : _previous(installLocalizedText(this)) {}
    ~MarkedLocalizedText() override { installLocalizedText(_previous); }
    MarkedLocalizedText(const MarkedLocalizedText&) = delete;
    MarkedLocalizedText& operator=(const MarkedLocalizedText&) = delete;

    std::string textForKey(std::string_view key) const override {
        return "<" + std::string(key) + ">";
    }

private:
    const LocalizedText* _previous;
};

} // namespace kx
