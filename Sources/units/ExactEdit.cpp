#include "units/ExactEdit.h"

#include "addresses/CharacterClass.h"
#include "units/IdentityText.h"
#include "units/UnitCommand.h"
#include "units/UnitName.h"

#include <algorithm>
#include <string>

namespace kx {

namespace {

bool areAlike(std::string_view left, std::string_view right) {
    return std::ranges::equal(left, right, {}, detail::lowered, detail::lowered);
}

// The text in the form that the conversion reads, when it is written in another one.
std::string separatedAsConverted(ValueForm form, std::string_view typed) {
    const auto digits = digitsOfSixPairs(typed);
    const bool isOctets = form == ValueForm::hardwareAddress || form == ValueForm::serialNumber;
    return isOctets && digits.has_value() ? *digits : std::string(typed);
}

std::optional<UnitIDBytes> bytesOfArgument(const ParameterEdit& edit) {
    const std::string_view digits = std::string_view(edit.command).substr(commandPrefix.size() + 1);
    UnitIDBytes bytes{};
    if (digits.size() > 2 * bytes.size() || !std::ranges::all_of(digits, isHexDigit)) {
        return std::nullopt;
    }
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2) {
        bytes.at(i / 2) = static_cast<std::uint8_t>(hexDigitValue(digits[i]) << 4U |
                                                    hexDigitValue(digits[i + 1]));
    }
    return bytes;
}

bool isShortName(const ParameterEdit& edit) {
    return edit.parameter == UnitParameter::unitID && edit.change == ValueChange::wrongLength &&
           edit.value.size() < identityLength;
}

} // namespace

bool ExactEdit::isShownBy(const UnitRecord& record,
                          const std::optional<UnitIDBytes>& idBytes) const {
    if (edit.parameter == UnitParameter::unitID) {
        return unitIDBytes.has_value() && idBytes == unitIDBytes;
    }
    const auto shown = record.value(edit.parameter);
    return shown.has_value() && edit.expectedText.has_value() && *shown == *edit.expectedText;
}

std::variant<ExactEdit, EditRefusal> exactEdit(UnitParameter parameter, std::string_view typed) {
    const auto edit =
        editOfParameter(parameter, separatedAsConverted(descriptionOf(parameter).form, typed));
    if (const auto* const refusal = std::get_if<EditRefusal>(&edit)) {
        return *refusal;
    }
    ExactEdit exact{.edit = std::get<ParameterEdit>(edit), .unitIDBytes = {}, .isChanged = false};
    exact.isChanged = exact.edit.change != ValueChange::none && !isShortName(exact.edit);
    if (parameter == UnitParameter::unitID) {
        exact.unitIDBytes = bytesOfArgument(exact.edit);
    }
    return exact;
}

ExactEdit exactEditOfUnitID(const UnitIDBytes& bytes) {
    const std::string digits = hexStringForData(bytes, "");
    ExactEdit exact{.edit = {}, .unitIDBytes = bytes, .isChanged = false};
    exact.edit.parameter = UnitParameter::unitID;
    exact.edit.command =
        std::string(commandPrefix) + descriptionOf(UnitParameter::unitID).commandLetter + digits;
    exact.edit.value = digits;
    if (const auto text = unitIDforData(bytes)) {
        exact.edit.value = withoutTrailingZeroBytes(*text);
        exact.edit.expectedText = exact.edit.value;
    }
    exact.edit.typed = exact.edit.value;
    return exact;
}

std::optional<UnitParameter> unitParameterForTypedName(std::string_view typed) {
    const auto* const found =
        std::ranges::find_if(parameterTable, [typed](const ParameterDescription& row) {
            return areAlike(row.identifier, typed) || areAlike(row.name, typed);
        });
    return found == parameterTable.end() ? std::nullopt : std::optional(found->parameter);
}

} // namespace kx
