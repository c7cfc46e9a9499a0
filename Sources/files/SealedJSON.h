// Documents of JSON that say what they are, and show whether they have changed since they were
// written.
//
// A sealed document is an object with these keys besides its own:
//
//   "kind"      names the format, such as "plan"
//   "schema"    the version of the format, a whole number
//   "checksum"  eight hexadecimal digits in lower case, the last key: the CRC-32 (ISO 3309) of the
//               object without this key, written with characters of ASCII only and without blanks
//
// They mean the same in every version of every format, so a newer file is told apart from a damaged
// one. Blanks and line breaks between the values do not count.
//
// Pure; any thread. Texts are UTF-8.

#pragma once

#include "files/DocumentFault.h"
#include "files/UnitJSON.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace kx {

// The text of an object with its checksum, and a line break. `object` is as textOfJson() writes it;
// line breaks may stand between its values.
std::string sealedText(std::string_view object);

// The object of a sealed text without its checksum; absent for any other text.
std::optional<Json> unsealedObject(std::string_view text);

// The same for a text of one kind and version.
std::variant<Json, DocumentFault> unsealedDocument(std::string_view text, std::string_view kind,
                                                   int version);

} // namespace kx
