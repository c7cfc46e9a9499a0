#include "conversation/NewAddressSearch.h"

#include "AddressFixture.h"

namespace kx {

namespace {

class NewAddressSearchTest : public AddressTest {
protected:
    void begin(std::uint32_t count) {
        std::vector<AddressQuestion> questions;
        for (std::uint32_t i = 0; i < count; ++i) {
            questions.push_back({.address = first + i, .link = link});
        }
        search = std::make_unique<NewAddressSearch>(
            exchange, HolderSearch::Services{.neighbours = neighbours}, questions);
        search->begin([this] { endedAt = runLoop.now(); });
    }

    void setEntry(std::uint32_t number, NeighbourState state, const std::string& hardware = {}) {
        neighbours.entries[first + number] = {.state = state, .hardwareAddress = hardware};
    }

    static constexpr std::uint32_t first = 0xC0A80200U;
    std::unique_ptr<NewAddressSearch> search;
    std::optional<std::chrono::milliseconds> endedAt;
};

} // namespace

TEST_F(NewAddressSearchTest, TheResultsAreInTheOrderOfTheQuestions) {
    setEntry(0, NeighbourState::failed);
    setEntry(1, NeighbourState::reachable, otherHardware);
    begin(2);
    runLoop.advanceBy(2s);
    ASSERT_TRUE(endedAt.has_value());
    EXPECT_EQ(search->results()[0].state, HolderState::free);
    EXPECT_EQ(search->results()[1].state, HolderState::held);
    EXPECT_EQ(search->results()[1].holders[0].hardwareAddress, otherHardware);
}

TEST_F(NewAddressSearchTest, WithoutQuestionsItEndsAtOnce) {
    begin(0);
    EXPECT_TRUE(endedAt.has_value());
}

TEST_F(NewAddressSearchTest, SoManyAddressesAreAskedForAtOnceAsTheSystemKeeps) {
    for (std::uint32_t i = 0; i < 600; ++i) {
        setEntry(i, NeighbourState::failed);
    }
    begin(600);
    EXPECT_EQ(sent().size(), 256U);
    runLoop.advanceBy(1300ms);
    EXPECT_EQ(sent().size(), 256U);
    runLoop.advanceBy(1300ms);
    EXPECT_EQ(sent().size(), 88U);
    runLoop.advanceBy(1300ms);
    EXPECT_TRUE(endedAt.has_value());
    EXPECT_EQ(search->results()[599].state, HolderState::free);
}

// An old entry is given up after the first four seconds.
TEST_F(NewAddressSearchTest, AnAddressOfWhichNothingIsKnownIsAskedForAgain) {
    setEntry(0, NeighbourState::failed);
    setEntry(1, NeighbourState::stale, otherHardware);
    begin(2);
    EXPECT_EQ(sent().size(), 2U);
    runLoop.advanceBy(4s);
    EXPECT_FALSE(endedAt.has_value());
    EXPECT_EQ(sent(), Lines{"192.168.2.1:3520 ^^IdX"});
    setEntry(1, NeighbourState::failed);
    runLoop.advanceBy(2s);
    EXPECT_TRUE(endedAt.has_value());
    EXPECT_EQ(search->results()[1].state, HolderState::free);
}

TEST_F(NewAddressSearchTest, AnAddressOfWhichNothingIsKnownInTheEndIsUnknown) {
    begin(1);
    runLoop.advanceBy(20s);
    EXPECT_EQ(endedAt, 16s);
    EXPECT_EQ(search->results()[0].state, HolderState::unknown);
}

TEST_F(NewAddressSearchTest, AnInterruptionEndsItWithWhatIsKnown) {
    setEntry(0, NeighbourState::failed);
    begin(2);
    runLoop.advanceBy(1300ms);
    search->interrupt();
    EXPECT_TRUE(endedAt.has_value());
    EXPECT_EQ(search->results()[0].state, HolderState::free);
    EXPECT_EQ(search->results()[1].state, HolderState::unknown);
    sent();
    runLoop.advanceBy(20s);
    EXPECT_TRUE(sent().empty());
}

} // namespace kx
