// A simulated unit sends what the parameter table says and takes every command of it, by its bytes.
// The units share no code with the application, so that a row which only one side has shows here.

#include "Simulator/FactorySettings.h"
#include "Simulator/SimulatedUnit.h"
#include "support/TextEncoding.h"
#include "units/IdentityText.h"
#include "units/UnitCommand.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace kx {

namespace {

using ItemsByTag = std::map<std::string, Bytes>;

constexpr std::size_t headerLength = 21;
constexpr std::size_t itemTagLength = 3;

simulator::SimulatedUnit anyUnit() {
    return simulator::SimulatedUnit(
        simulator::factorySettings(1, {.base = 0xC000'0200, .prefixLength = 24}));
}

std::optional<Bytes> answerTo(simulator::SimulatedUnit& unit, std::string_view command) {
    return unit.answer(bytesOfText(command));
}

// The items of a unit's reply, cut as the table says. Bytes that do not fit are a failure.
ItemsByTag itemsOf(simulator::SimulatedUnit& unit) {
    const Bytes reply = answerTo(unit, parameterRequestCommand).value_or(Bytes());
    ItemsByTag items;
    for (std::size_t at = headerLength; at < reply.size();) {
        const std::string tag(reply.begin() + static_cast<std::ptrdiff_t>(at),
                              reply.begin() + static_cast<std::ptrdiff_t>(
                                                  std::min(at + itemTagLength, reply.size())));
        const auto row = std::ranges::find(parameterTable, tag, &ParameterDescription::tag);
        if (row == parameterTable.end()) {
            ADD_FAILURE() << "a unit sends " << tag << " at " << at;
            break;
        }
        at += itemTagLength;
        const ByteView value = subrange(reply, at, lengthOfValue(row->form));
        EXPECT_TRUE(items.emplace(tag, Bytes(value.begin(), value.end())).second) << tag;
        at += value.size();
    }
    return items;
}

bool isAcknowledgement(const std::optional<Bytes>& answer) {
    return answer.has_value() && answer->size() == headerLength + 3 &&
           std::string(answer->end() - 3, answer->end()) == "ok\r";
}

} // namespace

TEST(ParameterTableOnTheWire, AUnitSendsEachItemOnceAndNothingElse) {
    simulator::SimulatedUnit unit = anyUnit();
    std::set<std::string> expected;
    for (const auto& row : parameterTable) {
        expected.emplace(row.tag);
    }
    std::set<std::string> found;
    for (const auto& [tag, value] : itemsOf(unit)) {
        found.insert(tag);
    }
    EXPECT_EQ(found, expected);
}

TEST(ParameterTableOnTheWire, EachCommandChangesTheItemOfItsRowAndNoOther) {
    for (const auto& row : parameterTable) {
        if (!row.isEditable()) {
            continue;
        }
        simulator::SimulatedUnit unit = anyUnit();
        ItemsByTag expected = itemsOf(unit);
        Bytes& value = expected[std::string(row.tag)];
        value.assign(lengthOfValue(row.form), 0x31);
        const std::string command =
            std::string(commandPrefix) + row.commandLetter + hexStringForData(value, "");
        EXPECT_TRUE(isAcknowledgement(answerTo(unit, command))) << row.name;
        EXPECT_EQ(itemsOf(unit), expected) << row.name;
    }
}

TEST(ParameterTableOnTheWire, NoOtherLetterIsTaken) {
    for (char letter = '!'; letter <= '~'; ++letter) {
        const bool isRequest =
            letter == parameterRequestCommand.back() || letter == restoreCommand.back();
        if (isRequest ||
            std::ranges::count(parameterTable, letter, &ParameterDescription::commandLetter) > 0) {
            continue;
        }
        for (const std::size_t digits : {0U, 4U, 8U, 12U}) {
            simulator::SimulatedUnit unit = anyUnit();
            const std::string command =
                std::string(commandPrefix) + letter + std::string(digits, '0');
            EXPECT_EQ(answerTo(unit, command), std::nullopt) << command;
        }
    }
}

} // namespace kx
