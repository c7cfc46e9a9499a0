#include "conversation/UnitRow.h"

#include "units/IdentityText.h"
#include "units/ParameterNumber.h"

namespace kx {

UnitRow::UnitRow(const HeardUnit& unit)
    : sender(unit.sender)
    , link(unit.link)
    , answered(unit.answered) {
    for (const UnitParameter parameter : allUnitParameters) {
        const auto text = unit.record.value(parameter);
        if (parameter != UnitParameter::unitID && text.has_value()) {
            _values.set(parameter, numberOfParameter(parameter, *text));
        }
    }
    if (unit.unitIDBytes.has_value()) {
        _values.set(UnitParameter::unitID, numberOfUnitID(*unit.unitIDBytes));
    }
}

std::optional<std::string> UnitRow::text(UnitParameter parameter) const {
    if (!tells(parameter)) {
        return std::nullopt;
    }
    return parameter == UnitParameter::unitID ? unitIDforData(unitIDOfNumber(number(parameter)))
                                              : textOfParameter(parameter, number(parameter));
}

HeardUnit UnitRow::heardUnit() const {
    HeardUnit unit{.record = {}, .sender = sender, .link = link, .answered = answered};
    for (const UnitParameter parameter : allUnitParameters) {
        if (const auto value = text(parameter)) {
            unit.record.setValue(parameter, *value);
        }
    }
    unit.record.setLink(link);
    if (tells(UnitParameter::unitID)) {
        unit.unitIDBytes = unitIDOfNumber(number(UnitParameter::unitID));
    }
    return unit;
}

} // namespace kx
