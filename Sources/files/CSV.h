// Tables as comma-separated values (RFC 4180): fields between commas, records that end with CRLF.
//
// Pure; any thread. Texts are UTF-8.

#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

// One record with its line break. A field with a comma, a quotation mark, a line break or a blank
// at an end is quoted.
std::string csvRecord(std::span<const std::string> fields);

// The records of a text, without its line breaks; the way back of csvRecord(). Records may also end
// with a line feed alone. A quoted field that nothing closes goes to the end of the text.
std::vector<std::vector<std::string>> csvRecords(std::string_view text);

} // namespace kx
