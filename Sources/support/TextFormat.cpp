#include "support/TextFormat.h"

namespace kx {

FormatArgument::FormatArgument(std::string_view text)
    : _text(text) {}
FormatArgument::FormatArgument(const std::string& text)
    : _text(text) {}
FormatArgument::FormatArgument(const char* text)
    : _text(text) {}
FormatArgument::FormatArgument(const std::optional<std::string>& text)
    : _text(text.value_or("(null)")) {}
FormatArgument::FormatArgument(long long number)
    : _text(std::to_string(number)) {}

std::string filledText(std::string_view format, std::initializer_list<FormatArgument> arguments) {
    std::string result;
    const auto* argument = arguments.begin();
    for (std::size_t i = 0; i < format.size(); ++i) {
        const char kind = format[i] == '%' && i + 1 < format.size() ? format[i + 1] : '\0';
        const bool isPlaceholder = kind == '@' || kind == 'd' || kind == 's';
        if (isPlaceholder && argument != arguments.end()) {
            result += argument->text();
            ++argument;
            ++i;
        } else if (kind == '%') {
            result += '%';
            ++i;
        } else {
            result += format[i];
        }
    }
    return result;
}

} // namespace kx
