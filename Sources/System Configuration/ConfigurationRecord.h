// Reads entries of records as the kind of value that the caller wants. A record, an entry or a
// value may be missing, and an entry of another kind counts as missing. All functions are pure and
// may be called from any thread.

#pragma once

#include "support/PropertyListValue.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

using ConfigurationRecord = std::optional<PropertyDictionary>;

std::optional<PropertyListValue> entryOf(const ConfigurationRecord& record, std::string_view key);

std::optional<std::string> textOf(const std::optional<PropertyListValue>& value);

// No elements when the value is missing.
PropertyList listOf(const std::optional<PropertyListValue>& value);

// The texts among the elements, without the others.
std::vector<std::string> textsOf(const std::optional<PropertyListValue>& value);

// A number, or the number at the beginning of a text.
std::optional<std::int64_t> numberOf(const std::optional<PropertyListValue>& value);

} // namespace kx
