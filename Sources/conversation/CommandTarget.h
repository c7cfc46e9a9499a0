// The unit that commands go to, as far as it is known beforehand, and the reasons why a command
// would not be sent.
//
// Pure; any thread. Texts are UTF-8.

#pragma once

#include "conversation/EditTrouble.h"
#include "units/ParameterEdit.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace kx {

struct CommandTarget {
    bool unitIsSelected = false;
    // The selected unit's "internal IP address" and "internal MAC address"; absent when no unit is
    // selected, and when it did not tell them.
    std::optional<std::string> address = {};
    std::optional<std::string> hardwareAddress = {};
    bool isListening = true;

    // Another unit than the selected one has the serial number that was typed.
    bool newSerialNumberIsTaken = false;

    // What speaks against the typed value, and the unit of EditTrouble::addressOfAnotherUnit.
    EditTrouble trouble = EditTrouble::none;
    std::string holderOfAddress = {};

    // The serial number of the selected unit when another one was selected as the row of the edit
    // was chosen; absent otherwise.
    std::optional<std::string> unitInPlaceOfRow = {};

    // The person has pressed Return in the edit row, which only ends the typing.
    bool returnWasPressed = false;

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
