#include "words/UnitColumns.h"

#include "addresses/IPv4Address.h"
#include "support/LocalizedText.h"
#include "support/VisibleText.h"
#include "units/IdentityText.h"
#include "units/ParameterEdit.h"
#include "units/ParameterNumber.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <utility>
#include <vector>

namespace kx {

namespace {

struct ColumnRow {
    UnitColumn column;
    std::optional<UnitParameter> parameter;
    std::string_view title; // of a column without a parameter
};

constexpr std::array<ColumnRow, unitColumnCount> columnTable{{
    {UnitColumn::serialNumber, UnitParameter::serialNumber, {}},
    {UnitColumn::unitID, UnitParameter::unitID, {}},
    {UnitColumn::state, {}, localizedKey("State")},
    {UnitColumn::internalIPAddress, UnitParameter::internalIPAddress, {}},
    {UnitColumn::internalMACAddress, UnitParameter::internalMACAddress, {}},
    {UnitColumn::devicePortNumber, UnitParameter::devicePortNumber, {}},
    {UnitColumn::destinationIPAddress, UnitParameter::destinationIPAddress, {}},
    {UnitColumn::destinationMACAddress, UnitParameter::destinationMACAddress, {}},
    {UnitColumn::destinationPortNumber, UnitParameter::destinationPortNumber, {}},
    {UnitColumn::sender, {}, localizedKey("Sender")},
    {UnitColumn::interface, {}, localizedKey("Interface")},
    {UnitColumn::lastHeard, {}, localizedKey("Last heard")},
}};

constexpr bool everyColumnIsInPlace() {
    for (std::size_t i = 0; i < columnTable.size(); ++i) {
        if (indexOf(columnTable[i].column) != i) {
            return false;
        }
    }
    return true;
}
static_assert(everyColumnIsInPlace());

// By UnitState. An answer is the usual state, and draws no eye.
constexpr std::array signOfState{"⚠ ", "⚠ ", "○ ", ""};

// The text of a unit ID without the zero bytes that fill it up. One that is no text is shown by its
// bytes.
std::string shownUnitID(const UnitRow& row) {
    const auto text = row.text(UnitParameter::unitID);
    if (text.has_value()) {
        return visibleText(withoutTrailingZeroBytes(*text));
    }
    return row.tells(UnitParameter::unitID) ? textOfSixBytes(row.number(UnitParameter::unitID), "")
                                            : std::string();
}

// --- Searched texts ---

char lowered(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

void appendDecimal(std::string& text, std::uint64_t number) {
    std::array<char, 20> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    text.append(digits.data(), end.ptr);
}

void appendAddress(std::string& text, std::uint64_t address) {
    for (unsigned shift = 32; shift > 0;) {
        shift -= 8;
        appendDecimal(text, address >> shift & 0xFFU);
        text += shift > 0 ? "." : "";
    }
}

// With what separates the pairs of digits, and without.
void appendSixBytes(std::string& text, std::uint64_t number, char separator) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::array<char, 31> both{};
    for (std::size_t i = 0; i < identityLength; ++i) {
        const auto byte = number >> (40U - 8U * i) & 0xFFU;
        both[3 * i] = both[18 + 2 * i] = digits[byte >> 4U];
        both[3 * i + 1] = both[19 + 2 * i] = digits[byte & 0xFU];
        both[3 * i + 2] = i + 1 < identityLength ? separator : '\n';
    }
    text.append(both.data(), 30);
}

void appendSearchedParameter(const UnitRow& row, UnitParameter parameter, std::string& text) {
    if (!row.tells(parameter)) {
        return;
    }
    const std::uint64_t number = row.number(parameter);
    switch (descriptionOf(parameter).form) {
    case ValueForm::unitID:
        text += loweredASCII(shownUnitID(row));
        break;
    case ValueForm::ipv4Address:
        appendAddress(text, number);
        break;
    case ValueForm::listeningPort:
    case ValueForm::anyPort:
        appendDecimal(text, number);
        break;
    case ValueForm::serialNumber:
        appendSixBytes(text, number, ' ');
        break;
    case ValueForm::hardwareAddress:
    case ValueForm::none:
        appendSixBytes(text, number, ':');
        break;
    }
}

// --- Sorting keys ---

constexpr std::uint64_t last = std::numeric_limits<std::uint64_t>::max();

// Numbers, also those that are typed as names, before names, and those before what is no text.
std::uint64_t keyOfUnitID(const UnitRow& row) {
    constexpr std::uint64_t names = std::uint64_t{1} << 56U;
    constexpr std::uint64_t bytes = std::uint64_t{2} << 56U;
    const std::uint64_t number = row.number(UnitParameter::unitID);
    const auto text = row.text(UnitParameter::unitID);
    if (!text.has_value()) {
        return bytes | number;
    }
    const std::string_view shown = withoutTrailingZeroBytes(*text);
    std::uint64_t value = 0;
    const auto [end, error] = std::from_chars(shown.data(), shown.data() + shown.size(), value);
    if (error == std::errc() && end == shown.data() + shown.size()) {
        return value;
    }
    UnitIDBytes letters = unitIDOfNumber(number);
    for (std::uint8_t& letter : letters) {
        letter = static_cast<std::uint8_t>(lowered(static_cast<char>(letter)));
    }
    return names | numberOfUnitID(letters);
}

} // namespace

std::optional<UnitParameter> parameterOfColumn(UnitColumn column) {
    return columnTable[indexOf(column)].parameter;
}

std::string loweredASCII(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(), lowered);
    return result;
}

UnitTexts::UnitTexts(const AllUnits& units, TextOfTime textOfTime)
    : _units(units)
    , _textOfTime(std::move(textOfTime))
    , _wordsOfState(wordsOfStates()) {}

std::array<std::string, 4> UnitTexts::wordsOfStates() {
    return {localizedText("Serial number used twice"), localizedText("Address used twice"),
            localizedText("No answer"), localizedText("Answered")};
}

std::string UnitTexts::title(UnitColumn column) {
    const ColumnRow& row = columnTable[indexOf(column)];
    const std::string_view key =
        row.parameter.has_value() ? nameOfUnitParameter(*row.parameter) : row.title;
    return localizedText(key);
}

const std::string& UnitTexts::words(UnitState state) const {
    return _wordsOfState[static_cast<std::size_t>(state)];
}

std::string UnitTexts::text(std::uint32_t unit, UnitColumn column) const {
    const UnitRow& row = _units.row(unit);
    if (const auto parameter = parameterOfColumn(column)) {
        return parameter == UnitParameter::unitID ? shownUnitID(row)
                                                  : row.text(*parameter).value_or("");
    }
    if (column == UnitColumn::state) {
        const UnitState state = _units.stateOf(unit);
        return signOfState[static_cast<std::size_t>(state)] + words(state);
    }
    if (column == UnitColumn::sender) {
        return stringForIP(row.sender);
    }
    return column == UnitColumn::interface ? visibleText(_units.nameOfLink(row.link))
                                           : _textOfTime(row.heard);
}

std::string UnitTexts::note(std::uint32_t unit, UnitColumn column) const {
    const UnitState state = _units.stateOf(unit);
    const bool isOfState = column == UnitColumn::state;
    if (state == UnitState::silent && isOfState) {
        return localizedText("It did not answer the latest Discover.");
    }
    if (state == UnitState::sharesSerialNumber &&
        (isOfState || column == UnitColumn::serialNumber)) {
        return noteOfSerialNumber(unit);
    }
    const bool sharesAddress =
        state == UnitState::sharesAddress || (state == UnitState::sharesSerialNumber &&
                                              _units.sharerOfAddress(unit) != AllUnits::nobody);
    if (sharesAddress && (isOfState || column == UnitColumn::internalIPAddress)) {
        return noteOfAddress(unit);
    }
    return {};
}

std::string UnitTexts::noteOfSerialNumber(std::uint32_t unit) const {
    const UnitRow& other = _units.row(_units.sharerOfSerialNumber(unit));
    return localizedText(
        "Another unit, %@, has this serial number, too.",
        {other.text(UnitParameter::internalMACAddress).value_or(stringForIP(other.sender))});
}

std::string UnitTexts::noteOfAddress(std::uint32_t unit) const {
    const UnitRow& other = _units.row(_units.sharerOfAddress(unit));
    return localizedText(
        "The unit %@ has the address %@, too.",
        {other.text(UnitParameter::serialNumber), other.text(UnitParameter::internalIPAddress)});
}

void UnitTexts::appendSearched(std::uint32_t unit, const UnitColumns& columns,
                               std::string& text) const {
    const UnitRow& row = _units.row(unit);
    for (const ColumnRow& each : columnTable) {
        if (!columns.test(indexOf(each.column)) || each.column == UnitColumn::lastHeard) {
            continue;
        }
        if (each.parameter.has_value()) {
            appendSearchedParameter(row, *each.parameter, text);
        } else if (each.column == UnitColumn::state) {
            text += loweredASCII(words(_units.stateOf(unit)));
        } else if (each.column == UnitColumn::sender) {
            appendAddress(text, row.sender);
        } else {
            text += loweredASCII(visibleText(_units.nameOfLink(row.link)));
        }
        text += '\n';
    }
}

std::uint64_t sortingKey(const AllUnits& units, std::uint32_t unit, UnitColumn column,
                         const std::map<std::uint32_t, std::uint64_t>& rankOfLink) {
    const UnitRow& row = units.row(unit);
    if (const auto parameter = parameterOfColumn(column)) {
        if (!row.tells(*parameter)) {
            return last;
        }
        return parameter == UnitParameter::unitID ? keyOfUnitID(row) : row.number(*parameter);
    }
    if (column == UnitColumn::state) {
        return static_cast<std::uint64_t>(units.stateOf(unit));
    }
    if (column == UnitColumn::sender) {
        return row.sender;
    }
    if (column == UnitColumn::lastHeard) {
        return units.hearingOf(unit);
    }
    const auto rank = rankOfLink.find(row.link);
    return rank != rankOfLink.end() ? rank->second : last;
}

std::map<std::uint32_t, std::uint64_t> ranksOfLinks(const AllUnits& units) {
    std::vector<std::pair<std::string_view, std::uint32_t>> names;
    for (const auto& [link, name] : units.links()) {
        names.emplace_back(name, link);
    }
    std::ranges::sort(names);
    std::map<std::uint32_t, std::uint64_t> ranks;
    for (const auto& [name, link] : names) {
        ranks.emplace(link, ranks.size());
    }
    return ranks;
}

} // namespace kx
