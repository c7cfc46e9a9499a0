// The columns of the table of all units, and the text of each cell.
//
// Main thread only. Texts are UTF-8 and may be shown as they are: characters of foreign texts that
// would act on the screen are marks (support/VisibleText.h).

#pragma once

#include "conversation/AllUnits.h"

#include <array>
#include <bitset>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

// In the order in which a person first sees them.
enum class UnitColumn : std::uint8_t {
    serialNumber,
    unitID,
    state,
    internalIPAddress,
    internalMACAddress,
    devicePortNumber,
    destinationIPAddress,
    destinationMACAddress,
    destinationPortNumber,
    sender,
    interface,
    lastHeard,
    end, // no column; equals the number of columns
};

inline constexpr std::size_t unitColumnCount = static_cast<std::size_t>(UnitColumn::end);

using UnitColumns = std::bitset<unitColumnCount>;

constexpr std::size_t indexOf(UnitColumn column) {
    return static_cast<std::size_t>(column);
}

// The parameter whose values the column shows; absent for the other columns.
std::optional<UnitParameter> parameterOfColumn(UnitColumn column);

class UnitTexts {
public:
    using TextOfTime = std::function<std::string(std::chrono::system_clock::time_point)>;

    // The words are those of the language at this moment. `units` must outlive the object.
    UnitTexts(const AllUnits& units, TextOfTime textOfTime);

    // The head of the column: the localized name, as parameters have it.
    static std::string title(UnitColumn column);

    // The text of a cell; empty where the unit does not tell the value. The text of a state is
    // words, with a sign in front of all but the usual one.
    std::string text(std::uint32_t unit, UnitColumn column) const;

    // The words of each state, in the order of UnitState.
    static std::array<std::string, 4> wordsOfStates();

    // The words of a state, without the sign.
    const std::string& words(UnitState state) const;

    // A sentence that says what is wrong with the cell, empty where nothing is. The state and the
    // value that two units share have one.
    std::string note(std::uint32_t unit, UnitColumn column) const;

    // Appends the texts of a unit in which a filter searches, each on a line, with the letters A to
    // Z in lower case. Serial numbers and hardware addresses stand there also without what
    // separates their digits. The time is not searched.
    void appendSearched(std::uint32_t unit, const UnitColumns& columns, std::string& text) const;

private:
    std::string noteOfSerialNumber(std::uint32_t unit) const;
    std::string noteOfAddress(std::uint32_t unit) const;

    const AllUnits& _units;
    TextOfTime _textOfTime;
    std::array<std::string, 4> _wordsOfState;
};

// The text with the letters A to Z in lower case, the form in which a filter searches.
std::string loweredASCII(std::string_view text);

// A number by which the cells of a column are put in order: addresses and numbers as such, unit IDs
// that are numbers before names, names without regard to case, states with the weightiest first, an
// absent value last. `rankOfLink` is the place of an interface among the others.
std::uint64_t sortingKey(const AllUnits& units, std::uint32_t unit, UnitColumn column,
                         const std::map<std::uint32_t, std::uint64_t>& rankOfLink);

// The place of each interface in the order of their names.
std::map<std::uint32_t, std::uint64_t> ranksOfLinks(const AllUnits& units);

} // namespace kx
