#include "conversation/CommandTarget.h"

#include "support/TextEncoding.h"

namespace kx {

namespace {

CommandRefusal refusalOf(EditRefusal refusal) {
    switch (refusal) {
    case EditRefusal::notEditable:
        return CommandRefusal::notEditable;
    case EditRefusal::notUTF8:
        return CommandRefusal::notUTF8;
    case EditRefusal::emptyValue:
        break;
    }
    return CommandRefusal::emptyValue;
}

} // namespace

std::optional<CommandRefusal> refusalOfCommand(std::string_view command,
                                               const CommandTarget& target) {
    if (!target.unitIsSelected) {
        return CommandRefusal::noUnit;
    }
    if (!asciiBytes(command).has_value()) {
        return CommandRefusal::notASCII;
    }
    return target.address.has_value() ? std::nullopt : std::optional(CommandRefusal::noAddress);
}

std::optional<CommandRefusal> refusalOfEdit(const std::variant<ParameterEdit, EditRefusal>& edit,
                                            const CommandTarget& target) {
    if (const auto* const refusal = std::get_if<EditRefusal>(&edit)) {
        return refusalOf(*refusal);
    }
    const auto& parameterEdit = std::get<ParameterEdit>(edit);
    return parameterEdit.parameter == UnitParameter::internalIPAddress
               ? std::nullopt
               : refusalOfCommand(parameterEdit.command, target);
}

} // namespace kx
