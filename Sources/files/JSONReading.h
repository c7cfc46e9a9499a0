// Values of documents of JSON, checked as they are read. For the readers of the formats alone.
//
// Pure; any thread. Texts are UTF-8. Addresses are in host byte order.

#pragma once

#include "files/UnitJSON.h"
#include "units/ParameterList.h"
#include "units/UnitRecord.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

// A value that the format does not allow, or a key that is not there. Each reader catches it.
struct JSONDamage {};

// Whether a text that is no JSON is something else, such as a table, and not a damaged document: it
// does not begin as JSON does, and has no key "schema", which every document has. False for a text
// of nothing but blanks, which may be all that is left of one.
bool isNoJSONAtAll(std::string_view text);

const Json& valueOf(const Json& object, const char* key);

// Absent for null.
std::optional<std::string> textOf(const Json& object, const char* key);

// A text that may not be null.
std::string presentTextOf(const Json& object, const char* key);

// A whole number from 0 to `most`.
std::uint64_t numberOf(const Json& value, std::uint64_t most);

bool truthOf(const Json& object, const char* key);

// Six pairs of hexadecimal digits in either case, as a serial number or a hardware address is
// written.
std::string sixPairsOf(const std::string& text, char separator);

// An address in the form of stringForIP().
std::uint32_t addressOf(const std::string& text);

UnitIDBytes unitIDOf(const std::string& digits);

// The parameters that addRecord() adds. The text of a unit ID is that of its bytes.
struct ReadRecord {
    UnitRecord record; // has a serial number
    std::optional<UnitIDBytes> unitIDBytes = {};
};
ReadRecord recordOf(const Json& json);

} // namespace kx
