// Texts that a person can see, looked up with the English text as the key.
//
// One source serves the whole process, because there is one user with one language. Until a source
// is installed, every key stands for itself. Main thread only.

#pragma once

#include "support/TextFormat.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace kx {

class LocalizedText {
public:
    virtual ~LocalizedText() = default;

    // The text for an English key, in UTF-8; the key itself where there is no translation. Keeps
    // the key's placeholders (see TextFormat.h) in number, kind and order.
    virtual std::string textForKey(std::string_view key) const = 0;
};

// The key itself. It marks a text that is looked up at another place, so that the catalogues list
// it.
constexpr std::string_view localizedKey(std::string_view key) {
    return key;
}

// Makes `source` the process's source and returns the one before it; null means that keys stand for
// themselves. The caller keeps ownership and must install another before it destroys this one.
const LocalizedText* installLocalizedText(const LocalizedText* source);

// The text for an English key from the installed source.
std::string localizedText(std::string_view key);

// The same with its placeholders filled.
std::string localizedText(std::string_view key, std::initializer_list<FormatArgument> arguments);

} // namespace kx
