#include "conversation/BindingRelease.h"

#include "AddressFixture.h"

namespace kx {

namespace {

class BindingReleaseTest : public AddressTest {
protected:
    static constexpr std::uint32_t bound = 0xC0A80132U; // 192.168.1.50

    // Counts the entries that are told to be gone.
    class Journal final : public RunJournal {
    public:
        int gone = 0;
        void write(const JournalEntry& entry, Written written) override {
            gone += std::get<JournalledBinding>(entry).isMade ? 0 : 1;
            written(false);
        }
    };

    void begin(int count = 1) {
        std::vector<JournalledBinding> left(
            static_cast<std::size_t>(count),
            {.address = "192.168.1.50", .hardwareAddress = unitHardware, .isMade = true});
        release = std::make_unique<BindingRelease>(
            BindingRelease::Services{
                .bindings = bindings, .neighbours = neighbours, .journal = &journal},
            std::vector<std::uint32_t>{2, link}, left);
        release->begin([this] { hasEnded = true; });
    }

    Journal journal;
    std::unique_ptr<BindingRelease> release;
    bool hasEnded = false;
};

} // namespace

TEST_F(BindingReleaseTest, AnEntryThatStillStandsIsTakenOut) {
    neighbours.entriesOnLinks[{bound, link}] = {.state = NeighbourState::permanent,
                                                .hardwareAddress = unitHardware};
    begin();
    EXPECT_TRUE(hasEnded);
    EXPECT_EQ(bindings.calls, Lines{"release 192.168.1.50 00:1A:2B:3C:4D:5E"});
    EXPECT_EQ(release->released(), 1U);
    EXPECT_EQ(journal.gone, 1);
}

TEST_F(BindingReleaseTest, NobodyIsAskedForAnEntryThatIsGoneOrNamesAnother) {
    begin();
    neighbours.entries[bound] = {.state = NeighbourState::permanent,
                                 .hardwareAddress = otherHardware};
    begin();
    neighbours.entries[bound] = {.state = NeighbourState::reachable,
                                 .hardwareAddress = unitHardware};
    begin();
    EXPECT_TRUE(bindings.calls.empty());
    EXPECT_EQ(journal.gone, 3);
    EXPECT_EQ(release->released(), 0U);
}

TEST_F(BindingReleaseTest, AnEntryThatCannotBeTakenOutIsToldAndStaysInTheJournal) {
    neighbours.entries[bound] = {.state = NeighbourState::permanent,
                                 .hardwareAddress = unitHardware};
    bindings.answerToRelease = {.state = ARPEntryState::rightsNotGiven};
    begin();
    ASSERT_EQ(release->failures().size(), 1U);
    EXPECT_EQ(release->failures()[0].entry.state, ARPEntryState::rightsNotGiven);
    EXPECT_EQ(journal.gone, 0);
}

TEST_F(BindingReleaseTest, AnInterruptionEndsBehindTheEntryUnderWay) {
    neighbours.entries[bound] = {.state = NeighbourState::permanent,
                                 .hardwareAddress = unitHardware};
    bindings.onRelease = [this] { release->interrupt(); };
    begin(3);
    EXPECT_TRUE(hasEnded);
    EXPECT_EQ(bindings.calls.size(), 1U);
}

} // namespace kx
