// The unit that commands go to, as far as it is known beforehand, and the reasons why a command
// would not be sent.
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

    // Another unit than the selected one has the serial number that was typed.
    bool newSerialNumberIsTaken = false;

    // Why no ARP entry will be made for the typed address, in a sentence that is a key of the
    // catalogues. Empty when nothing speaks against it.
    std::string objectionToARPEntry = {};
};

enum class CommandRefusal {
    notEditable,
    emptyValue,
    notUTF8, // a unit ID that is not valid UTF-8
    noUnit,
    notASCII,
    noAddress, // the address of the selected unit is not known
};

// The reason why a command for the selected unit is not handed to the network; absent when it is
// handed over.
std::optional<CommandRefusal> refusalOfCommand(std::string_view command,
                                               const CommandTarget& target);

// The same for an edit. The internal IP address is sent to the typed address itself, which needs
// neither a unit nor its address.
std::optional<CommandRefusal> refusalOfEdit(const std::variant<ParameterEdit, EditRefusal>& edit,
                                            const CommandTarget& target);

} // namespace kx
