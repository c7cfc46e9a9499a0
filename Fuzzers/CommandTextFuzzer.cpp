// Texts that a person can type into the edit row and the option command field.

#include "FuzzInput.h"
#include "conversation/EditOutcome.h"
#include "support/TextEncoding.h"
#include "units/ParameterEdit.h"
#include "units/UnitCommand.h"
#include "words/EditForecast.h"
#include "words/EditOutcomeText.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>

using namespace kx;

namespace {

bool isHexadecimal(std::string_view text) {
    return text.find_first_not_of("0123456789ABCDEF") == std::string_view::npos;
}

std::string argument(ValueForm form, std::string_view typed) {
    const auto argument = argumentForText(form, typed);
    requireInvariant(argument.has_value(), "every text has an argument in this form");
    return argument.value_or("");
}

void checkSentences(const std::string& sentences) {
    requireInvariant(!sentences.empty() && sentences.size() < 1000,
                     "a forecast is a few sentences");
    requireInvariant(sentences.find_first_of("\r\n") == std::string::npos,
                     "a sentence has no line breaks");
}

void checkEdit(const ParameterEdit& edit, std::string_view typed) {
    requireInvariant(edit.command.starts_with(commandPrefix), "a command begins with ^^Id");
    requireInvariant(edit.command == editCommand(edit.parameter, typed),
                     "an edit has its own command");
    requireInvariant(edit.typed == typed, "an edit keeps what was typed");

    // Units show six octets in upper case, and no zero bytes behind a text.
    const ValueForm form = descriptionOf(edit.parameter).form;
    const bool isCompared = form == ValueForm::ipv4Address || form == ValueForm::listeningPort ||
                            form == ValueForm::anyPort;
    requireInvariant(!isCompared || !edit.expectedText.has_value() ||
                         edit.expectedText == edit.value,
                     "what is sent is what the unit should show");
    requireInvariant(edit.change != ValueChange::none || edit.expectedText.has_value(),
                     "a value that was taken as it is can be shown");

    const EditOutcome outcome(edit, {});
    requireInvariant(textOfEditOutcome(outcome).find_first_of("\r\n") == std::string::npos,
                     "an outcome has no line breaks");
}

void checkParameter(UnitParameter parameter, std::string_view typed) {
    const auto edit = editOfParameter(parameter, typed);
    if (const auto* const parameterEdit = std::get_if<ParameterEdit>(&edit)) {
        checkEdit(*parameterEdit, typed);
    } else {
        requireInvariant(typed.empty() || !editCommand(parameter, typed).has_value(),
                         "an edit is refused when no command comes of it");
    }
    checkSentences(forecastOfEdit(edit, {.unitIsSelected = true,
                                         .address = "192.168.1.10",
                                         .hardwareAddress = "00:1A:2B:3C:4D:5E"}));
    checkSentences(forecastOfEdit(edit, {.unitIsSelected = true,
                                         .address = "192.168.1.10",
                                         .isListening = false,
                                         .newSerialNumberIsTaken = true}));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view typed = textOfInput(data, size);

    for (const UnitParameter parameter : allUnitParameters) {
        checkParameter(parameter, typed);
    }
    requireInvariant(argument(ValueForm::hardwareAddress, typed).find(':') == std::string::npos,
                     "no colon is left");
    requireInvariant(argument(ValueForm::serialNumber, typed).find(' ') == std::string::npos,
                     "no blank is left");

    const std::string address = argument(ValueForm::ipv4Address, typed);
    requireInvariant(address.size() == 8 && isHexadecimal(address), "an address is eight digits");
    const std::string listeningPort = argument(ValueForm::listeningPort, typed);
    requireInvariant(listeningPort >= "0DC0" && listeningPort <= "0DC3" &&
                         listeningPort.size() == 4,
                     "a destination port is 3520 to 3523");
    const std::string port = argument(ValueForm::anyPort, typed);
    requireInvariant(port.size() >= 4 && port.size() <= 8 && isHexadecimal(port),
                     "a device port is four to eight digits");
    const auto unitID = argumentForText(ValueForm::unitID, typed);
    requireInvariant(unitID.has_value() == isValidUTF8({data, size}) &&
                         (!unitID || isHexadecimal(*unitID)),
                     "a unit ID is digits when it is text");

    requireInvariant(optionCommand(typed).ends_with('\r'),
                     "an option command ends with a carriage return");
    requireInvariant(optionTextForTitle(typed, std::tm{}).find("  ") == std::string::npos,
                     "an option's text has no two blanks");
    return 0;
}
