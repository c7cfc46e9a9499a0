// A discovery that was saved: the document that `kxctl discover` writes to a file.
//
// The format is JSON (RFC 8259) with a version, the key "schema". Version 1 is described by
// docs/json-schema/discover.json. The reader takes what comparisons need, and passes over keys that
// it does not know. A file of another version is told apart from a damaged one.
//
// Pure; any thread. Addresses are in host byte order. Texts are UTF-8.

#pragma once

#include "units/ParameterList.h"
#include "units/UnitRecord.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kx {

inline constexpr int savedDiscoveryVersion = 1;

struct SavedUnit {
    UnitRecord record; // has a serial number; the unit ID is that of `unitIDBytes`
    std::optional<UnitIDBytes> unitIDBytes;
    std::uint32_t sender = 0;             // address from which the answer came
    std::optional<std::string> interface; // name of the interface by which it came
    std::chrono::milliseconds answered{0};
};

struct SavedDiscovery {
    std::vector<SavedUnit> units; // in the order of the file

    // No datagram was dropped, and the discovery went to its end.
    bool isComplete = false;
};

// Why a text holds no discovery that can be compared.
enum class SavedDiscoveryFault {
    damaged,       // cut short, changed, or a value that the format does not allow
    otherDocument, // something else, such as the document of another command, or a table
    otherVersion,
    neverAsked, // a discovery that could not ask anybody
};

// Letters of hexadecimal digits are taken in either case.
std::variant<SavedDiscovery, SavedDiscoveryFault> readSavedDiscovery(std::string_view text);

} // namespace kx
