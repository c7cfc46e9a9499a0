// What Apply will send for a typed value, and why a command is not sent, in words.
//
// The conversions of CommandProtocol.h are loose: they refuse nothing, and turn what they cannot
// read into something else. A note tells beforehand what will come of a value. It decides nothing.
//
// Everything here is pure but for looking up the sentences (support/LocalizedText.h), so it belongs
// to the main thread. Texts are UTF-8.

#pragma once

#include "UnitParameters.h"

#include <optional>
#include <string>
#include <string_view>

namespace kx {

// Whom commands reach, as far as it is known. The addresses are those of the selected unit.
struct CommandTarget {
    bool unitIsSelected = false;
    std::optional<std::string> address = {};         // "internal IP address"
    std::optional<std::string> hardwareAddress = {}; // "internal MAC address"
};

enum class CommandRefusal {
    emptyValue,
    notUTF8, // a unit ID that is no text
    noUnit,
    notASCII,
    noAddress, // of the selected unit
};

// Why a command for the selected unit is not sent; absent when it is.
std::optional<CommandRefusal> refusalOfCommand(std::string_view command,
                                               const CommandTarget& target);

// The same for a typed value. The internal IP address is sent to the typed address itself, so only
// an empty value keeps it back.
std::optional<CommandRefusal> refusalOfEdit(UnitParameter parameter, std::string_view typed,
                                            const CommandTarget& target);

// "Not sent: no unit is selected."
std::string noteOfRefusal(CommandRefusal refusal);

// "Apply sends ^^IdT0DC0: destination port 3520, because 3524 is outside 3520 to 3523."
std::string noteOfEdit(UnitParameter parameter, std::string_view typed,
                       const CommandTarget& target);

// A foreign text as a note shows it: on one line, and cut behind its first 32 characters.
std::string shownInNote(std::string_view text);

} // namespace kx
