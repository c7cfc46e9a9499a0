// Filling arguments into a message text.
//
// A message is looked up as a whole (see LocalizedText.h) and then filled, so its placeholders are
// part of the text: "%@" for a text, "%d" for a number, "%s" for a text of the operating system,
// "%%" for a percent sign. Pure; any thread.

#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

// One argument of a message. An absent text prints as "(null)". Implicit, so that arguments are
// written as they are: {name, 3520}.
class FormatArgument {
public:
    FormatArgument(std::string_view text);
    FormatArgument(const std::string& text);
    FormatArgument(const char* text);
    FormatArgument(const std::optional<std::string>& text);
    FormatArgument(long long number);
    FormatArgument(int number)
        : FormatArgument(0LL + number) {}

    const std::string& text() const { return _text; }

private:
    std::string _text;
};

// `format` with each placeholder replaced by the next argument in order. A placeholder without an
// argument stays as it is; surplus arguments are ignored.
std::string filledText(std::string_view format, std::initializer_list<FormatArgument> arguments);

} // namespace kx
