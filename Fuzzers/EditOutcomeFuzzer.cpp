// A unit's answer to an edit, as an outcome and the sentences about it: a byte for the
// parameter, a line of typed text, and behind it the parameter list of the reply.

#include "FuzzInput.h"
#include "conversation/EditOutcome.h"
#include "support/PlatformException.h"
#include "support/TextEncoding.h"
#include "units/ParameterList.h"
#include "words/EditOutcomeText.h"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <string>
#include <variant>

using namespace kx;

namespace {

constexpr std::string_view editedUnit = "00 01 02 03 04 05";

void checkText(const EditOutcome& outcome) {
    const std::string text = textOfEditOutcome(outcome);
    requireInvariant(text.ends_with('.') && text.size() < 1000, "an outcome is a few sentences");
    requireInvariant(text.find_first_of("\r\n") == std::string::npos,
                     "an outcome has no line breaks");
    requireInvariant(isValidUTF8(bytesOfText(text)), "an outcome is text");
}

UnitRecord recordOfReply(ByteView list) {
    try {
        return decodeUnitParameters(list).record;
    } catch (const PlatformException&) {
        return {};
    }
}

std::string_view shownBy(const UnitRecord& record, UnitParameter parameter) {
    return withoutTrailingZeroBytes(record.value(parameter).value_or(""));
}

void checkReply(const EditOutcome& outcome, const UnitRecord& record) {
    const UnitParameter parameter = outcome.edit().parameter;
    const bool isTold = record.value(parameter).has_value();
    requireInvariant(isTold == (outcome.state() != EditState::notReported),
                     "what is not told is known as such");
    requireInvariant(isTold == outcome.shownValue().has_value(),
                     "a value is shown when it is told");
    requireInvariant(!isTold || outcome.shownValue() == shownBy(record, parameter),
                     "the value that is shown is the one that was told");
    const bool isShown = isTold && outcome.edit().expectedText == shownBy(record, parameter);
    requireInvariant(isShown == (outcome.state() == EditState::shown),
                     "a value that shows was taken over");
    const bool saysOtherwise =
        textOfEditOutcome(outcome).find("not what was sent") != std::string::npos;
    requireInvariant(saysOtherwise == (outcome.state() == EditState::different),
                     "a value that is another one, and no other, is not what was sent");
}

// Everything that can happen to an edit that was sent.
void followSentEdit(const ParameterEdit& edit, const EditOutcome::Unit& unit,
                    const UnitRecord& record) {
    EditOutcome outcome(edit, unit);
    checkText(outcome);
    requireInvariant(outcome.unitDidAccept(editedUnit, std::nullopt), "its unit accepts");
    checkText(outcome);
    requireInvariant(outcome.unitDidTell(editedUnit, record), "its unit tells");
    checkText(outcome);
    checkReply(outcome, record);
    requireInvariant(!outcome.unitDidAccept(editedUnit, std::nullopt), "a unit accepts once");
    checkReply(outcome, record);

    EditOutcome asBefore(edit,
                         {.serialNumber = unit.serialNumber,
                          .valueBefore = std::optional<std::string>(record.value(edit.parameter))});
    asBefore.unitDidTell(editedUnit, record);
    checkText(asBefore);
    requireInvariant(asBefore.state() != EditState::different, "the value before is no other one");

    EditOutcome unasked(edit, unit);
    unasked.unitDidAccept(editedUnit, SendFailure{posixError(ENETUNREACH)});
    checkText(unasked);
}

// Another unit changes nothing, unless it can be the same one under a new serial number.
void followForeignReply(const ParameterEdit& edit, const EditOutcome::Unit& unit,
                        const UnitRecord& record) {
    EditOutcome outcome(edit, unit);
    const auto serial = record.value(UnitParameter::serialNumber);
    const bool isTaken =
        serial.has_value() && serial != editedUnit && outcome.unitDidTell(*serial, record);
    requireInvariant(
        !isTaken || (edit.parameter == UnitParameter::serialNumber && serial == edit.expectedText),
        "another unit's reply is not taken for this one's");
    requireInvariant(isTaken || serial == editedUnit || outcome.state() == EditState::pending,
                     "another unit's reply changes nothing");
    checkText(outcome);
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
    const UnitRecord record = recordOfReply(input.subspan(std::min(typedLength + 1, input.size())));
    const auto made = editOfParameter(parameter, *typed);
    const auto* const edit = std::get_if<ParameterEdit>(&made);
    requireInvariant(edit != nullptr, "every text makes an edit of every parameter");
    if (edit != nullptr) {
        const EditOutcome::Unit unit{.serialNumber = std::string(editedUnit)};
        followSentEdit(*edit, unit, record);
        followForeignReply(*edit, unit, record);
    }
    return 0;
}
