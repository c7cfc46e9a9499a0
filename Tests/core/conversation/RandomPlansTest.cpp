// Random tables against a plain model: rows are carried out one at a time, in any order, as long as
// one of them takes only what nobody holds. The plan must plan exactly those rows.

#include "PlanFixture.h"

#include <algorithm>
#include <array>
#include <map>
#include <random>
#include <set>

namespace kx {

namespace {

class RandomPlansTest : public PlanTest {
protected:
    using Values = std::map<UnitParameter, std::string>;
    using Everybody = std::map<std::string, Values>; // by serial number

    static constexpr std::array exclusive{UnitParameter::internalIPAddress,
                                          UnitParameter::internalMACAddress,
                                          UnitParameter::serialNumber};

    std::uint32_t below(std::uint32_t bound) {
        return std::uniform_int_distribution<std::uint32_t>(0, bound - 1)(random);
    }

    static std::string valueOf(UnitParameter parameter, std::uint32_t number) {
        switch (parameter) {
        case UnitParameter::internalIPAddress:
            return address(number);
        case UnitParameter::internalMACAddress:
            return sampleHardwareAddress(number);
        default:
            return sampleSerial(number);
        }
    }

    // Rows for some of the units, in any order. A row for a unit that does not answer is among them
    // now and then, and so are values that are free, held, shown already or wanted twice.
    std::vector<WantedRow> randomRows(std::uint32_t units) {
        std::vector<std::uint32_t> numbers(units + 1);
        for (std::uint32_t i = 0; i <= units; ++i) {
            numbers[i] = i + 1;
        }
        std::ranges::shuffle(numbers, random);
        numbers.resize(1 + below(units));
        std::vector<WantedRow> rows;
        for (const std::uint32_t number : numbers) {
            Edits edits;
            for (const UnitParameter parameter : exclusive) {
                if (below(parameter == UnitParameter::internalIPAddress ? 2 : 5) == 0) {
                    edits.emplace_back(parameter, valueOf(parameter, 1 + below(units + 3)));
                }
            }
            rows.push_back(row(rows.size() + 2, number, edits));
        }
        return rows;
    }

    // Where the network is now, unit by unit.
    Everybody everybody() const {
        Everybody all;
        for (const HeardUnit* const unit : heard.all()) {
            for (const UnitParameter parameter : exclusive) {
                all[std::string(unit->serialNumber())][parameter] =
                    std::string(unit->record.value(parameter).value_or(""));
            }
        }
        return all;
    }

    static Values wantedOf(const WantedRow& row, const Values& now) {
        Values wanted;
        for (const ExactEdit& edit : row.edits) {
            const std::string value = edit.edit.expectedText.value_or("");
            if (now.at(edit.edit.parameter) != value) {
                wanted[edit.edit.parameter] = value;
            }
        }
        return wanted;
    }

    static bool isFree(const Everybody& units, const std::string& unit, const Values& wanted) {
        return std::ranges::none_of(units, [&](const auto& other) {
            return other.first != unit && std::ranges::any_of(wanted, [&](const auto& value) {
                       return other.second.at(value.first) == value.second;
                   });
        });
    }

    // The rows that can be carried out, by the model.
    static std::set<std::size_t> doable(const std::vector<WantedRow>& rows, Everybody units) {
        std::map<std::pair<UnitParameter, std::string>, int> wishes;
        std::map<std::size_t, Values> open;
        for (std::size_t i = 0; i < rows.size(); ++i) {
            if (units.contains(rows[i].serialNumber)) {
                open[i] = wantedOf(rows[i], units[rows[i].serialNumber]);
                for (const auto& wish : open[i]) {
                    ++wishes[wish];
                }
            }
        }
        std::erase_if(open, [&](const auto& row) {
            return row.second.empty() || std::ranges::any_of(row.second, [&](const auto& wish) {
                       return wishes[wish] > 1;
                   });
        });
        std::set<std::size_t> done;
        for (bool goesOn = true; goesOn;) {
            goesOn = false;
            for (const auto& [row, wanted] : open) {
                const std::string& unit = rows[row].serialNumber;
                if (!done.contains(row) && isFree(units, unit, wanted)) {
                    take(units[unit], wanted);
                    done.insert(row);
                    goesOn = true;
                }
            }
        }
        return done;
    }

    static void take(Values& unit, const Values& wanted) {
        for (const auto& [parameter, value] : wanted) {
            unit[parameter] = value;
        }
    }

    void expectStepsTakeOnlyWhatIsFree(const std::vector<WantedRow>& rows) {
        Everybody units = everybody();
        for (const std::size_t place : latest.order) {
            const std::string& unit = rows[place].serialNumber;
            const Values wanted = wantedOf(rows[place], units.at(unit));
            EXPECT_FALSE(wanted.empty());
            EXPECT_TRUE(isFree(units, unit, wanted)) << "line " << rows[place].line;
            take(units[unit], wanted);
        }
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

    std::mt19937 random{20'261'122};
};

} // namespace

TEST_F(RandomPlansTest, ExactlyTheRowsThatCanBeDoneArePlannedAndInAnOrderThatWorks) {
    std::array<int, rowStateCount> seen{};
    int rings = 0;
    for (int round = 0; round < 8000; ++round) {
        heard = HeardUnits();
        const std::uint32_t units = 2 + below(7);
        hear(1, units);
        const auto rows = randomRows(units);
        plan(rows);
        const auto expected = doable(rows, everybody());
        ASSERT_EQ(std::set(latest.order.begin(), latest.order.end()), expected);
        ASSERT_EQ(latest.order.size(), expected.size());
        expectStepsTakeOnlyWhatIsFree(rows);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const PlannedRow& planned = latest.rows[i];
            const bool isHeard = planned.unit.has_value();
            ++seen.at(static_cast<std::size_t>(planned.state));
            ASSERT_EQ(planned.state == RowState::planned, expected.contains(i));
            ASSERT_EQ(planned.state == RowState::silent, !isHeard);
            if (objection(i) == RowObjection::ring) {
                ++rings;
                ASSERT_TRUE(isInRing(i));
            }
        }
    }
    // The tables had rows of all kinds.
    EXPECT_GT(seen.at(static_cast<std::size_t>(RowState::planned)), 1000);
    EXPECT_GT(seen.at(static_cast<std::size_t>(RowState::unchanged)), 1000);
    EXPECT_GT(seen.at(static_cast<std::size_t>(RowState::refused)), 1000);
    EXPECT_GT(seen.at(static_cast<std::size_t>(RowState::silent)), 100);
    EXPECT_GT(rings, 100);
}

} // namespace kx
