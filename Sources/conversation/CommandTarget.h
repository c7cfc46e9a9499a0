// Whom commands reach, as far as it is known beforehand, and why one would not be sent.
//
// Pure; any thread. Texts are UTF-8.

#pragma once

#include "units/ParameterEdit.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace kx {

struct CommandTarget {
    bool unitIsSelected = false;
    std::optional<std::string> address = {};         // the selected unit's "internal IP address"
    std::optional<std::string> hardwareAddress = {}; // its "internal MAC address"
    bool isListening = true;

    // The unit that has the typed serial number, though it is not the selected one.
    bool newSerialNumberIsTaken = false;
};

enum class CommandRefusal {
    notEditable,
    emptyValue,
    notUTF8, // a unit ID that is no text
    noUnit,
    notASCII,
    noAddress, // of the selected unit
};

// Why a command for the selected unit is not handed to the network; absent when it is.
std::optional<CommandRefusal> refusalOfCommand(std::string_view command,
                                               const CommandTarget& target);

// The same for an edit. The internal IP address is sent to the typed address itself, which needs
// neither a unit nor its address.
std::optional<CommandRefusal> refusalOfEdit(const std::variant<ParameterEdit, EditRefusal>& edit,
                                            const CommandTarget& target);

} // namespace kx
