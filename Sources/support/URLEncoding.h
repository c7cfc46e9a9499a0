// Texts as parts of a URL. Pure functions, any thread.

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kx {

// The text with every byte percent-escaped except ASCII letters, digits and "-._~": "%" and two
// upper-case hexadecimal digits for each. The result can stand anywhere in a URL.
std::string stringByURLEncoding(std::string_view text);

// The URL of a file; absent unless the path begins with "/".
std::optional<std::string> fileURLForPath(std::string_view path);

} // namespace kx
