#include "words/EditForecast.h"

#include "addresses/IPv4Address.h"
#include "support/LocalizedText.h"
#include "support/TextEncoding.h"
#include "units/IdentityText.h"
#include "units/UnitCommand.h"
#include "words/QuotedText.h"

namespace kx {

namespace {

// "destination port 3521"
std::string parameterAndValue(const ParameterEdit& edit) {
    return localizedText(descriptionOf(edit.parameter).phrase, {edit.value});
}

std::string commandOf(const ParameterEdit& edit) {
    return safeForSentence(edit.command);
}

long long digitsOf(const ParameterEdit& edit) {
    return static_cast<long long>(edit.value.size());
}

// For example "Apply sends ^^IdT0DC1: destination port 3521."
std::string forecastOfValue(const ParameterEdit& edit) {
    return localizedText("Apply sends %@: %@.", {commandOf(edit), parameterAndValue(edit)});
}

std::string forecastOfValueReadAs(const ParameterEdit& edit) {
    return localizedText("Apply sends %@: %@, because that is how “%@” is read.",
                         {commandOf(edit), parameterAndValue(edit), safeForSentence(edit.typed)});
}

std::string forecastOfMACAddress(const ParameterEdit& edit) {
    switch (edit.change) {
    case ValueChange::notHexadecimal:
        return localizedText("Apply sends %@, though a MAC address has 12 hexadecimal digits and "
                             "nothing else but colons.",
                             {commandOf(edit)});
    case ValueChange::wrongLength:
        return localizedText(
            "Apply sends %@, though a MAC address has 12 hexadecimal digits and this "
            "has %d.",
            {commandOf(edit), digitsOf(edit)});
    default:
        return forecastOfValue(edit);
    }
}

std::string forecastOfSerialNumber(const ParameterEdit& edit, const CommandTarget& target) {
    switch (edit.change) {
    case ValueChange::notHexadecimal:
        return localizedText("Apply sends %@, though a serial number has 12 hexadecimal digits and "
                             "nothing else but blanks.",
                             {commandOf(edit)});
    case ValueChange::wrongLength:
        return localizedText("Apply sends %@, though a serial number has 12 hexadecimal digits and "
                             "this has %d.",
                             {commandOf(edit), digitsOf(edit)});
    default:
        break;
    }
    return target.newSerialNumberIsTaken
               ? localizedText("Apply sends %@: serial number %@, which another unit has.",
                               {commandOf(edit), edit.value})
               : forecastOfValue(edit);
}

std::string forecastOfIPAddress(const ParameterEdit& edit) {
    switch (edit.change) {
    case ValueChange::notAnAddress:
        return localizedText(
            "Apply sends %@: %@, because “%@” is not an IPv4 address.",
            {commandOf(edit), parameterAndValue(edit), safeForSentence(edit.typed)});
    case ValueChange::readAs:
        return forecastOfValueReadAs(edit);
    default:
        return forecastOfValue(edit);
    }
}

std::string forecastOfPort(const ParameterEdit& edit) {
    switch (edit.change) {
    case ValueChange::notANumber:
        return localizedText(
            "Apply sends %@: %@, because “%@” does not begin with a number.",
            {commandOf(edit), parameterAndValue(edit), safeForSentence(edit.typed)});
    case ValueChange::readAs:
        return forecastOfValueReadAs(edit);
    case ValueChange::outOfRange:
        break;
    default:
        return forecastOfValue(edit);
    }
    const std::string number = safeForSentence(leadingNumber(edit.typed));
    return descriptionOf(edit.parameter).form == ValueForm::listeningPort
               ? localizedText("Apply sends %@: %@, because %@ is outside 3520 to 3523.",
                               {commandOf(edit), parameterAndValue(edit), number})
               : localizedText("Apply sends %@, more than the four digits of a port, because %@ is "
                               "outside 0 to 65535.",
                               {commandOf(edit), number});
}

// A number above 255 may also have been read out of a longer text.
std::string forecastOfLargeUnitNumber(const ParameterEdit& edit) {
    return edit.typed == edit.value
               ? localizedText(
                     "Apply sends %@: the number %@, which does not show as a number because "
                     "it is above 255.",
                     {commandOf(edit), edit.value})
               : localizedText("Apply sends %@: the number %@, because that is how “%@” is read. "
                               "Above 255 it does not show as a number.",
                               {commandOf(edit), edit.value, safeForSentence(edit.typed)});
}

std::string forecastOfUnitID(const ParameterEdit& edit) {
    switch (edit.change) {
    case ValueChange::notShown:
        return forecastOfLargeUnitNumber(edit);
    case ValueChange::readAs:
        return forecastOfValueReadAs(edit);
    case ValueChange::wrongLength:
        return localizedText(
            "Apply sends %@: the text “%@”, though a unit ID has 6 bytes and this has "
            "%d.",
            {commandOf(edit), safeForSentence(edit.typed), digitsOf(edit)});
    default:
        break;
    }
    return isUnitNumber(edit.typed) ? forecastOfValue(edit)
                                    : localizedText("Apply sends %@: unit ID “%@”.",
                                                    {commandOf(edit), safeForSentence(edit.value)});
}

// The ARP tool gets the address as it was typed, even when the command carries another one.
std::string forecastOfARPEntry(std::string_view typed, const CommandTarget& target) {
    if (!target.hardwareAddress.has_value()) {
        return localizedText(
            "Apply asks for administrator rights, but no MAC address is known for an "
            "ARP entry.");
    }
    if (!asciiBytes(typed).has_value()) {
        return localizedText("Apply asks for administrator rights, but an ARP entry can hold ASCII "
                             "characters only.");
    }
    if (!target.objectionToARPEntry.empty()) {
        return localizedText("Apply asks for administrator rights, but no ARP entry will be made "
                             "for “%@”: %@",
                             {safeForSentence(typed), localizedText(target.objectionToARPEntry)});
    }
    if (stringForIP(ipForString(typed)) != typed) {
        return localizedText("Apply hands “%@” and %@ to the ARP tool, which needs administrator "
                             "rights.",
                             {safeForSentence(typed), *target.hardwareAddress});
    }
    if (target.returnWasPressed) {
        return {}; // it was read while the address was typed, and the line has no room for both
    }
    return localizedText(
        "Apply enters %@ at %@ in the ARP cache, which needs administrator rights.",
        {typed, *target.hardwareAddress});
}

std::string forecastOfMove(const ParameterEdit& edit, const CommandTarget& target) {
    std::string forecast = forecastOfARPEntry(edit.typed, target);
    forecast += forecast.empty() ? "" : " ";
    if (!target.isListening) {
        return forecast + localizedText("Apply sends nothing: the UDP listener is not running.");
    }
    if (!target.unitIsSelected) {
        forecast += localizedText("No unit is selected.") + ' ';
    }
    switch (edit.change) {
    case ValueChange::notAnAddress:
        return forecast +
               localizedText("Apply sends %@ to 0.0.0.0, because “%@” is not an IPv4 address.",
                             {commandOf(edit), safeForSentence(edit.typed)});
    case ValueChange::readAs:
        return forecast + localizedText("Apply sends %@ to %@, because that is how “%@” is read.",
                                        {commandOf(edit), edit.value, safeForSentence(edit.typed)});
    default:
        return forecast + localizedText("Apply sends %@ to %@.", {commandOf(edit), edit.value});
    }
}

std::string forecastOfRefusal(CommandRefusal refusal) {
    switch (refusal) {
    case CommandRefusal::notEditable:
        return localizedText("Apply sends nothing: no command changes this parameter.");
    case CommandRefusal::emptyValue:
        return localizedText("Apply sends nothing: the value is empty.");
    case CommandRefusal::notUTF8:
        return localizedText("Apply sends nothing: the unit ID is not a text in UTF-8.");
    case CommandRefusal::noUnit:
        return localizedText("Apply sends nothing: no unit is selected.");
    case CommandRefusal::notASCII:
        return localizedText("Apply sends nothing: a command can hold ASCII characters only.");
    case CommandRefusal::noAddress:
        break;
    }
    return localizedText("Apply sends nothing: the address of the unit is not known.");
}

std::string forecastOfForm(const ParameterEdit& edit, const CommandTarget& target) {
    switch (descriptionOf(edit.parameter).form) {
    case ValueForm::hardwareAddress:
        return forecastOfMACAddress(edit);
    case ValueForm::serialNumber:
        return forecastOfSerialNumber(edit, target);
    case ValueForm::ipv4Address:
        return forecastOfIPAddress(edit);
    case ValueForm::listeningPort:
    case ValueForm::anyPort:
        return forecastOfPort(edit);
    case ValueForm::unitID:
    case ValueForm::none:
        break;
    }
    return forecastOfUnitID(edit);
}

std::string textOfTrouble(const CommandTarget& target) {
    switch (target.trouble) {
    case EditTrouble::none:
        break;
    case EditTrouble::ownAddress:
        return localizedText("This computer has it.");
    case EditTrouble::addressOfAnotherUnit:
        return localizedText("The unit %@ has it.", {target.holderOfAddress});
    case EditTrouble::addressOfMany:
        return localizedText("No unit can have it: it reaches many hosts.");
    case EditTrouble::addressOfSubnet:
        return localizedText("No unit can have it: it is the address of the subnet.");
    case EditTrouble::outsideSubnet:
        return localizedText("It is outside this computer's subnet, perhaps out of reach.");
    case EditTrouble::hardwareAddressOfMany:
        return localizedText("No unit can have it: it reaches many hosts.");
    }
    return {};
}

std::string forecastOfCommand(const ParameterEdit& edit, const CommandTarget& target) {
    return edit.parameter == UnitParameter::internalIPAddress ? forecastOfMove(edit, target)
                                                              : forecastOfForm(edit, target);
}

// The sentence about the command comes first, and the trouble next.
std::string withRemarks(std::string forecast, const CommandTarget& target) {
    const std::string trouble = textOfTrouble(target);
    forecast += trouble.empty() ? "" : ' ' + trouble;
    if (target.unitInPlaceOfRow.has_value()) {
        forecast += ' ' + localizedText("It goes to the unit %@, which was not shown when the row "
                                        "was chosen.",
                                        {*target.unitInPlaceOfRow});
    }
    if (target.returnWasPressed) {
        forecast += ' ' + localizedText("Return ends the typing; Ctrl+Return applies.");
    }
    return forecast;
}

} // namespace

std::string forecastOfEdit(const std::variant<ParameterEdit, EditRefusal>& edit,
                           const CommandTarget& target) {
    if (const auto refusal = refusalOfEdit(edit, target)) {
        return forecastOfRefusal(*refusal);
    }
    const auto& parameterEdit = std::get<ParameterEdit>(edit);
    if (parameterEdit.isTooLong()) {
        return localizedText("Apply sends nothing: the command is too long for a datagram.");
    }
    if (!target.isListening && parameterEdit.parameter != UnitParameter::internalIPAddress) {
        return localizedText("Apply sends nothing: the UDP listener is not running.");
    }
    return withRemarks(forecastOfCommand(parameterEdit, target), target);
}

bool meansTrouble(const std::variant<ParameterEdit, EditRefusal>& edit,
                  const CommandTarget& target) {
    const auto* const planned = std::get_if<ParameterEdit>(&edit);
    if (planned == nullptr) {
        return false; // an empty value, for example, is on its way to another one
    }
    // Units fill up a short unit ID.
    const bool isShortUnitID = planned->parameter == UnitParameter::unitID &&
                               planned->change == ValueChange::wrongLength &&
                               planned->typed.size() < identityLength;
    const bool isChanged = planned->change != ValueChange::none &&
                           planned->change != ValueChange::readAs && !isShortUnitID;
    return isChanged || planned->isTooLong() || !target.isListening ||
           target.newSerialNumberIsTaken || target.trouble != EditTrouble::none ||
           target.unitInPlaceOfRow.has_value() || !target.objectionToARPEntry.empty();
}

std::string forecastOfValueAlone(const ParameterEdit& edit) {
    return forecastOfForm(edit, {});
}

} // namespace kx
