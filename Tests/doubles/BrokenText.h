// Localized text that throws for one message, as a broken translation might. It is the process's
// source while it lives. Every other text stands for itself.

#pragma once

#include "support/LocalizedText.h"

#include <string>
#include <string_view>
#include <utility>

namespace kx {

template<class Exception>
class BrokenText final : public LocalizedText {
public:
    BrokenText(std::string key, Exception exception)
        : _key(std::move(key))
        , _exception(std::move(exception))
        , _previous(installLocalizedText(this)) {}
    ~BrokenText() override { installLocalizedText(_previous); }
    BrokenText(const BrokenText&) = delete;
    BrokenText& operator=(const BrokenText&) = delete;

    std::string textForKey(std::string_view key) const override {
        if (key == _key) {
            throw _exception;
        }
        return std::string(key);
    }

private:
    std::string _key;
    Exception _exception;
    const LocalizedText* _previous;
};

} // namespace kx
