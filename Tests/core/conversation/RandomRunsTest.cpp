// Random tables whose runs are killed at random moments and applied again, until every unit is as
// the table says; then taken back in the same way, and applied once more with all journals there.

#include "RunFixture.h"
#include "conversation/BindingRelease.h"
#include "conversation/RunHistory.h"
#include "model/RandomSteps.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace kx {

namespace {

class RandomRunsTest : public RunTest {
protected:
    std::uint32_t below(std::uint32_t bound) {
        return std::uniform_int_distribution<std::uint32_t>(0, bound - 1)(random);
    }

    // Chains of addresses, serial numbers and hardware addresses through the last units of a random
    // order, and harmless values besides.
    std::vector<WantedRow> randomRows(std::uint32_t count) {
        std::vector<std::uint32_t> chain(count + 1);
        std::iota(chain.begin(), chain.end(), 1U);
        std::shuffle(chain.begin(), chain.end() - 1, random);
        const std::uint32_t firstMove = below(count + 1);
        const std::uint32_t firstSerial = below(count + 1);
        const std::uint32_t firstHardware = below(count + 1);
        std::vector<WantedRow> rows;
        for (std::uint32_t i = 0; i < count; ++i) {
            const std::uint32_t next = chain[i + 1];
            Edits edits{{UnitParameter::unitID, "N" + std::to_string(below(100))},
                        {UnitParameter::devicePortNumber, std::to_string(4000 + below(100))}};
            if (i >= firstMove) {
                edits.emplace_back(UnitParameter::internalIPAddress, address(next));
            }
            if (i >= firstSerial) {
                edits.emplace_back(UnitParameter::serialNumber, serial(next));
            }
            if (i >= firstHardware) {
                edits.emplace_back(UnitParameter::internalMACAddress, hardware(next));
            }
            rows.push_back(row(i + 2, chain[i], edits));
        }
        std::ranges::shuffle(rows, random);
        return rows;
    }

    // The units as the table wants them.
    std::vector<std::string> wanted(const std::vector<WantedRow>& rows) const {
        std::vector<PlayedUnit> all = units;
        for (const WantedRow& each : rows) {
            const auto found = std::ranges::find(all, each.serialNumber, &PlayedUnit::serialNumber);
            const auto place = static_cast<std::size_t>(found - all.begin());
            PlayedUnit changed = units[place];
            for (const ExactEdit& edit : each.edits) {
                changed.take(edit.edit.command);
            }
            later.emplace_back(place, changed);
        }
        for (const auto& [place, changed] : std::exchange(later, {})) {
            all[place] = changed;
        }
        return settingsOf(all);
    }

    static std::vector<std::string> settingsOf(const std::vector<PlayedUnit>& some) {
        std::vector<std::string> settings;
        for (const PlayedUnit& each : some) {
            settings.push_back(each.serialNumber() + ' ' + each.hardwareAddress() + ' ' +
                               stringForIP(each.address()) + ' ' +
                               hexStringForData(each.settings.devicePort, "") + ' ' +
                               hexStringForData(each.settings.unitID, ""));
        }
        return settings;
    }

    // Begins the run, and kills it before it ends now and then. True when it has ended.
    bool applyOnce(const std::vector<WantedRow>& rows) {
        BindingRelease release({.bindings = bindings, .neighbours = services.holders.neighbours},
                               {link}, bindingsLeft(journal.entries));
        release.begin({});
        PlayedUnit& sleeper = units[below(static_cast<std::uint32_t>(units.size()))];
        sleeper.isSilent = below(6) == 0;
        // Nobody can know that a unit that is switched off has an address.
        const bool keepsGoing = !sleeper.isSilent && below(2) == 0;
        begin(planOf(rows), {.inFlight = 1 + below(8), .keepsGoing = keepsGoing});
        const std::uint32_t turns = below(6) == 0 ? 1'000'000 : below(300);
        for (std::uint32_t i = 0; i < turns && !hasEnded; ++i) {
            turn();
        }
        sleeper.isSilent = false;
        if (hasEnded) {
            expectTruth(rows);
        }
        const bool isOver =
            hasEnded &&
            run->plan().sum(RowState::done) + run->plan().sum(RowState::unchanged) == rows.size();
        run.reset();
        return isOver;
    }

    // A row that is done or unchanged has a unit that shows its values.
    void expectTruth(const std::vector<WantedRow>& rows) {
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const PlannedRow& each = run->plan().rows[i];
            if (each.state != RowState::done && each.state != RowState::unchanged) {
                continue;
            }
            const HeardUnit& unit = each.unit.value();
            const auto found =
                std::ranges::find(units, unit.serialNumber(), &PlayedUnit::serialNumber);
            ASSERT_NE(found, units.end());
            PlayedUnit again = *found;
            for (const ExactEdit& edit : rows[i].edits) {
                again.take(edit.edit.command);
            }
            EXPECT_EQ(again.settings.reply(), found->settings.reply()) << each.serialNumber;
        }
    }

    // The number of runs until one of them has ended with everything as wanted.
    template<class Rows>
    std::uint32_t applyUntilAllIsDone(const Rows& rows) {
        constexpr std::uint32_t mostRuns = 200;
        for (std::uint32_t i = 1; i <= mostRuns; ++i) {
            if (applyOnce(rows())) {
                return i;
            }
        }
        return 0;
    }

    std::mt19937 random{20'261'122};
    mutable std::vector<std::pair<std::size_t, PlayedUnit>> later;
};

} // namespace

TEST_F(RandomRunsTest, ARunThatIsKilledIsCarriedOnAndTakenBack) {
    std::uint32_t runs = 0;
    const std::uint32_t rounds = model::fewerWithSanitizers(500);
    for (std::uint32_t round = 0; round < rounds; ++round) {
        removeUnits();
        addUnits(1, 3 + below(8));
        journal.clear();
        journal.isSlow = below(2) == 0;
        lostPercent = 10 * below(3);
        const auto count = static_cast<std::uint32_t>(units.size());
        const auto rows = randomRows(count);
        ASSERT_FALSE(planOf(rows).hasObjections());
        const auto before = settingsOf(units);
        const auto after = wanted(rows);
        runs += applyUntilAllIsDone([&] { return resumedRows(rows, journal.entries); });
        ASSERT_EQ(settingsOf(units), after) << "round " << round;
        const std::vector<JournalEntry> applied = journal.entries;
        journal.clear();
        runs += applyUntilAllIsDone(
            [&] { return resumedRows(revertedRows(applied).rows, journal.entries); });
        ASSERT_EQ(settingsOf(units), before) << "round " << round;
        const std::vector<JournalEntry> takenBack = std::exchange(journal.entries, {});
        journal.clear();
        runs += applyUntilAllIsDone([&] {
            return resumedRows(resumedRows(resumedRows(rows, applied), takenBack), journal.entries);
        });
        ASSERT_EQ(settingsOf(units), after) << "round " << round;
        ASSERT_EQ(violations, std::set<std::string>());
        EXPECT_TRUE(bindings.entries.empty());
    }
    EXPECT_GT(runs, 6 * rounds); // most of them were killed
}

} // namespace kx
