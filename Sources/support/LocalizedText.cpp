#include "support/LocalizedText.h"

#include <utility>

namespace kx {

namespace {

const LocalizedText* installedSource = nullptr;

} // namespace

const LocalizedText* installLocalizedText(const LocalizedText* source) {
    return std::exchange(installedSource, source);
}

std::string localizedText(std::string_view key) {
    return installedSource != nullptr ? installedSource->textForKey(key) : std::string(key);
}

std::string localizedText(std::string_view key, std::initializer_list<FormatArgument> arguments) {
    return filledText(localizedText(key), arguments);
}

} // namespace kx
