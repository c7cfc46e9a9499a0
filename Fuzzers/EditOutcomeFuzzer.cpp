// What a unit answers to an edit, as the sentences about it: a byte for the parameter, a line of
// typed text, and behind it the parameter list of the reply.

#include "EditReport.h"
#include "FuzzInput.h"
#include "support/PlatformException.h"
#include "support/TextEncoding.h"

#include <algorithm>

using namespace kx;

namespace {

void checkText(const EditReport& report) {
    const std::string text = report.text();
    promise(text.ends_with('.') && text.size() < 1000, "a report is a few sentences");
    promise(text.find_first_of("\r\n") == std::string::npos, "a report has no line breaks");
    promise(isValidUTF8(bytesOfText(text)), "a report is text");
}

UnitRecord recordOfReply(ByteView list) {
    try {
        return decodeUnitParameters(list).record;
    } catch (const PlatformException&) {
        return {};
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    const UnitParameter parameter = allUnitParameters[data[0] % unitParameterCount];
    const ByteView input = ByteView(data, size).subspan(1);
    const auto typedLength =
        static_cast<std::size_t>(std::ranges::find(input, '\n') - input.begin());
    const auto typed = textFromUTF8(input.first(typedLength));
    if (!typed.has_value() || typed->empty()) {
        return 0;
    }

    EditReport report({parameter, *typed, "00 01 02 03 04 05", std::nullopt});
    checkText(report);
    report.unitDidAccept();
    checkText(report);
    const UnitRecord record = recordOfReply(input.subspan(std::min(typedLength + 1, input.size())));
    report.unitDidReply(record);
    checkText(report);

    const auto shown = record.value(parameter);
    const bool isShown = shown.has_value() && shown == shownValueOfEdit(parameter, *typed);
    const bool saysOtherwise = report.text().find("not what was sent") != std::string::npos;
    promise(!isShown || !saysOtherwise, "a value that is shown was taken over");
    return 0;
}
