// A thousand edits in a row.

#include "LiveBlocks.h"
#include "WireFixture.h"

#include <array>

namespace kx {

namespace {

using enum UnitParameter;

struct Edit {
    UnitParameter parameter;
    std::string value;
};

// Edits after which the controller still knows the unit, back and forth.
const std::array<Edit, 10> edits{{
    {destinationPortNumber, "3523"},
    {destinationIPAddress, "192.0.2.98"},
    {destinationMACAddress, "02:00:00:AA:BB:CC"},
    {internalMACAddress, "02:4B:58:AA:BB:CC"},
    {unitID, "sensor"},
    {destinationPortNumber, "3520"},
    {destinationIPAddress, "192.0.2.1"},
    {destinationMACAddress, "02:00:00:00:00:01"},
    {internalMACAddress, "02:4B:58:00:00:01"},
    {unitID, "7"},
}};

constexpr std::size_t editCount = 1000;

} // namespace

class ManyEdits : public WireTest {
protected:
    // An edit of a person, who needs a moment for each.
    void edit(UnitParameter parameter, const std::string& value) {
        apply(parameter, value);
        converse();
        runLoop.advanceBy(std::chrono::seconds(1));
    }
};

TEST_F(ManyEdits, EachIsAcknowledgedAndShown) {
    for (std::size_t i = 0; i < editCount; ++i) {
        const Edit& next = edits[i % edits.size()];
        const std::size_t commandsBefore = link.commandCount();
        edit(next.parameter, next.value);
        ASSERT_EQ(link.commandCount(), commandsBefore + 2); // the edit and the parameter request
        ASSERT_EQ(link.acknowledgementCount(), i + 1);
        ASSERT_EQ(shown(next.parameter), next.value);
    }
    EXPECT_EQ(systemLog.lines(), std::vector<std::string>{});
}

TEST_F(ManyEdits, AUnitMovesAThousandTimes) {
    for (std::size_t i = 0; i < editCount; ++i) {
        const std::string address =
            "10.0." + std::to_string(i / 100) + "." + std::to_string(1 + i % 100);
        edit(internalIPAddress, address);
        ASSERT_EQ(link.acknowledgementCount(), i + 1);
        ASSERT_EQ(shown(internalIPAddress), address);
    }
    EXPECT_EQ(authority.dialogs(), 1);
    EXPECT_EQ(authority.referencesAlive(), 1);
}

TEST_F(ManyEdits, LeaveNothingBehind) {
    const auto applyAllAndEmptyTheLog = [&](std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            const Edit& next = edits[i % edits.size()];
            edit(next.parameter, next.value);
        }
        discover();
    };
    applyAllAndEmptyTheLog(100);
    const std::size_t blocksBefore = liveBlocks();
    applyAllAndEmptyTheLog(editCount);
    EXPECT_EQ(liveBlocks(), blocksBefore);
    EXPECT_EQ(link.openCount(), 1U);
    EXPECT_EQ(runLoop.watchCount(), 1U);
    EXPECT_EQ(runLoop.pendingCallCount(), 0U);
    EXPECT_LT(controller.eventLog().size(), 1000U);
}

TEST(LiveBlocks, CountsWhatIsHeld) {
    const std::size_t before = liveBlocks();
    auto* const block = new std::array<char, 100>();
    EXPECT_EQ(liveBlocks(), before + 1);
    delete block;
    EXPECT_EQ(liveBlocks(), before);
}

} // namespace kx
