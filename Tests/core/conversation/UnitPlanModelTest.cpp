// Random tables for random units, among them units that cannot be told apart or reached, against a
// plain model of the plan; the state of every row is compared, and the order is tried out.

#include "PlanFixture.h"
#include "model/PlainPlan.h"
#include "model/RandomSteps.h"

#include <algorithm>
#include <array>
#include <set>

namespace kx {

namespace {

class UnitPlanModel : public PlanTest {
protected:
    using State = model::PlainPlan::State;

    std::string someAddress(std::uint32_t units) {
        return random.oneIn(12) ? random.oneOf<std::string>({"192.0.1.1", "192.0.0.0", "10.0.0.1",
                                                             "192.0.255.255", "255.255.255.255"})
                                : address(1 + random.below(units + 3));
    }

    // Usually the unit of this number as it is. Otherwise it tells the serial number or the address
    // of another one, the address of many, or not all.
    void hearUnit(std::uint32_t number, std::uint32_t units) {
        HeardUnit unit = heardUnit(number);
        const std::uint32_t other = 1 + random.below(units);
        switch (random.below(30)) {
        case 0:
            unit.record.setValue(UnitParameter::serialNumber, sampleSerial(other));
            break;
        case 1:
            unit.record.setValue(UnitParameter::internalIPAddress, address(other));
            break;
        case 2:
            unit.record.setValue(UnitParameter::internalIPAddress, someAddress(units));
            break;
        case 3:
            unit.record.setValue(UnitParameter::internalMACAddress, sampleHardwareAddress(other));
            break;
        case 4:
            unit.record.removeValue(UnitParameter::internalMACAddress);
            break;
        case 5:
            unit.record.removeValue(UnitParameter::internalIPAddress);
            break;
        default:
            break;
        }
        if (identities
                .insert({std::string(unit.serialNumber()), std::string(unit.hardwareAddress())})
                .second) {
            heard.add(unit);
            plainUnits.push_back(plainValues(unit));
        }
    }

    static model::PlainValues plainValues(const HeardUnit& unit) {
        model::PlainValues values;
        for (const auto& [letter, parameter] : letters) {
            if (const auto value = unit.record.value(parameter)) {
                values[letter] = std::string(*value);
            }
        }
        return values;
    }

    // Rows for some of the units, in any order. A row for a unit that does not answer is among them
    // now and then, and one for a unit that has a row already; and so are values that are free,
    // held, shown already or wanted twice.
    void addRows(std::uint32_t units) {
        std::vector<std::uint32_t> numbers;
        for (std::uint32_t number = 1; number <= units + 1; ++number) {
            numbers.insert(numbers.begin() + random.below(number), number);
        }
        numbers.resize(1 + random.below(units));
        if (random.oneIn(10)) {
            numbers.push_back(random.oneOf(numbers));
        }
        for (const std::uint32_t number : numbers) {
            addRow(number, units);
        }
    }

    void addRow(std::uint32_t number, std::uint32_t units) {
        Edits edits;
        model::PlainWish wish{sampleSerial(number), {}};
        for (const auto& [letter, parameter] : letters) {
            if (random.oneIn(letter == 'I' ? 2 : 5)) {
                const std::uint32_t other = 1 + random.below(units + 3);
                const std::string value = letter == 'I'   ? someAddress(units)
                                          : letter == 'M' ? sampleHardwareAddress(other)
                                                          : sampleSerial(other);
                edits.emplace_back(parameter, value);
                wish.values[letter] = value;
            }
        }
        rows.push_back(row(rows.size() + 2, number, edits));
        wishes.push_back(wish);
    }

    void makeRandomTable() {
        heard = HeardUnits();
        identities.clear();
        plainUnits.clear();
        rows.clear();
        wishes.clear();
        const std::uint32_t units = 2 + random.below(7);
        for (std::uint32_t number = 1; number <= units; ++number) {
            hearUnit(number, units);
        }
        addRows(units);
        random.tell("a table for " + std::to_string(units) + " units");
    }

    static State stateOf(const PlannedRow& row) {
        switch (row.state) {
        case RowState::planned:
            return State::planned;
        case RowState::unchanged:
            return State::unchanged;
        case RowState::silent:
            return State::silent;
        default:
            return State::refused;
        }
    }

    // The table and the units, for a person who looks for the difference.
    std::string describedTable() const {
        std::string text;
        for (const auto& unit : plainUnits) {
            text += "unit" + described(unit) + '\n';
        }
        for (const auto& wish : wishes) {
            text += "row for " + wish.serial + ':' + described(wish.values) + '\n';
        }
        return text;
    }

    static std::string described(const model::PlainValues& values) {
        std::string text;
        for (const auto& [letter, value] : values) {
            text += std::string(" ") + letter + '=' + value;
        }
        return text;
    }

    // A row of a ring comes back to itself by the rows that it waits for.
    bool isInRing(std::size_t row) const {
        std::set<std::size_t> seen;
        std::vector<std::size_t> open{row};
        while (!open.empty()) {
            const std::size_t place = open.back();
            open.pop_back();
            for (const RowDependency& dependency : latest.rows[place].after) {
                if (dependency.row == row) {
                    return true;
                }
                if (seen.insert(dependency.row).second) {
                    open.push_back(dependency.row);
                }
            }
        }
        return false;
    }

    static constexpr std::array letters{std::pair('I', UnitParameter::internalIPAddress),
                                        std::pair('M', UnitParameter::internalMACAddress),
                                        std::pair('S', UnitParameter::serialNumber)};

    model::RandomSteps random{8000};
    std::set<std::pair<std::string, std::string>> identities; // of the units that answer
    std::vector<model::PlainValues> plainUnits;
    std::vector<WantedRow> rows;
    std::vector<model::PlainWish> wishes;
};

} // namespace

TEST_F(UnitPlanModel, ExactlyTheRowsThatCanBeDoneArePlannedAndInAnOrderThatWorks) {
    std::array<std::uint32_t, rowStateCount> seen{};
    std::uint32_t rings = 0;
    while (random.next()) {
        makeRandomTable();
        plan(rows);
        const model::PlainPlan plain(wishes, plainUnits, {0xC0000101U, 0xFFFF0000U});
        for (std::size_t i = 0; i < rows.size(); ++i) {
            ++seen.at(static_cast<std::size_t>(latest.rows[i].state));
            ASSERT_EQ(stateOf(latest.rows[i]), plain.state(i)) << "row " << i << '\n'
                                                               << describedTable();
            if (objection(i) == RowObjection::ring) {
                ++rings;
                ASSERT_TRUE(isInRing(i)) << "row " << i << '\n' << describedTable();
            }
        }
        ASSERT_EQ(latest.order.size(), latest.sum(RowState::planned)) << describedTable();
        ASSERT_EQ(std::set(latest.order.begin(), latest.order.end()).size(), latest.order.size());
        ASSERT_TRUE(plain.isPossible(latest.order)) << describedTable();
    }
    // The tables had rows of all kinds.
    EXPECT_GT(seen.at(static_cast<std::size_t>(RowState::planned)), random.steps() / 8);
    EXPECT_GT(seen.at(static_cast<std::size_t>(RowState::unchanged)), random.steps() / 8);
    EXPECT_GT(seen.at(static_cast<std::size_t>(RowState::refused)), random.steps() / 8);
    EXPECT_GT(seen.at(static_cast<std::size_t>(RowState::silent)), random.steps() / 80);
    EXPECT_GT(rings, random.steps() / 160);
}

} // namespace kx
