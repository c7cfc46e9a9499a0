// Texts that a person can type into the edit row and the option command field.

#include "CommandProtocol.h"
#include "EditNotes.h"
#include "EditReport.h"
#include "FuzzInput.h"
#include "support/TextEncoding.h"

using namespace kx;

namespace {

bool isHexadecimal(std::string_view text) {
    return text.find_first_not_of("0123456789ABCDEF") == std::string_view::npos;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view typed = textOfInput(data, size);

    for (const UnitParameter parameter : allUnitParameters) {
        const auto command = editCommand(parameter, typed);
        promise(!command || command->starts_with(commandPrefix), "a command begins with ^^Id");

        const CommandTarget unit{true, "192.168.1.10", "00:1A:2B:3C:4D:5E"};
        const std::string note = noteOfEdit(parameter, typed, unit);
        promise(!note.empty() && note.size() < 1000, "a note is a few sentences");
        promise(note.find_first_of("\r\n") == std::string::npos, "a note has no line breaks");
        const EditReport report({parameter, std::string(typed), std::nullopt, std::nullopt});
        promise(report.text().find_first_of("\r\n") == std::string::npos,
                "a report has no line breaks");
    }
    promise(macAddressArgument(typed).find(':') == std::string::npos, "no colon is left");
    promise(serialNumberArgument(typed).find(' ') == std::string::npos, "no blank is left");

    const std::string ip = ipAddressArgument(typed);
    promise(ip.size() == 8 && isHexadecimal(ip), "an address is eight digits");
    const std::string destinationPort = destinationPortArgument(typed);
    promise(destinationPort >= "0DC0" && destinationPort <= "0DC3" && destinationPort.size() == 4,
            "a destination port is 3520 to 3523");
    const std::string devicePort = devicePortArgument(typed);
    promise(devicePort.size() >= 4 && devicePort.size() <= 8 && isHexadecimal(devicePort),
            "a device port is four to eight digits");
    const auto unitID = unitIDArgument(typed);
    promise(unitID.has_value() == isValidUTF8({data, size}) && (!unitID || isHexadecimal(*unitID)),
            "a unit ID is digits when it is text");

    promise(optionCommand(typed).ends_with('\r'), "an option command ends with a carriage return");
    promise(optionTextForTitle(typed, std::tm{}).find("  ") == std::string::npos,
            "an option's text has no two blanks");
    return 0;
}
