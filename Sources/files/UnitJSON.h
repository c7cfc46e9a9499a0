// Units as JSON (RFC 8259), with the keys of kxctl's documents.
//
// Pure; any thread. Texts are UTF-8; foreign texts may hold anything. What is written has no
// characters beyond ASCII, and a mark in the place of bytes that are no UTF-8.

#pragma once

#include "conversation/HeardUnits.h"
#include "conversation/HostInterface.h"
#include "files/JSONObjectText.h"

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace kx {

// Keeps the order of its keys.
using Json = nlohmann::ordered_json;

// The version of all documents, their key "schema".
inline constexpr int schemaOfDocuments = 1;

// Any value without blanks and line breaks between its parts.
std::string textOfJson(const Json& json);

// A document of any kind on one line, which ends with a line break.
std::string lineOfJson(const Json& json);

// Adds the parameters of a unit; null for those that it does not tell.
void addRecord(JSONObjectText& object, const UnitRecord& record,
               const std::optional<UnitIDBytes>& unitIDBytes);

// The same, and how it was heard, as an object.
std::string textOfUnit(const HeardUnit& unit, const std::vector<HostInterface>& interfaces);
Json jsonOfUnit(const HeardUnit& unit, const std::vector<HostInterface>& interfaces);

// A document with the keys "schema" and "units", each unit on a line of its own.
std::string documentOfUnits(const std::vector<const HeardUnit*>& units,
                            const std::vector<HostInterface>& interfaces);

} // namespace kx
