#include "conversation/RowSearch.h"

#include "RunFixture.h"

#include <cerrno>

namespace kx {

namespace {

class RowSearchTest : public RunTest {
protected:
    void search(const std::vector<WantedRow>& rows,
                std::vector<HostInterface> asked = {ownInterface()}) {
        hasEnded = false;
        began = runLoop.now();
        rowSearch = std::make_unique<RowSearch>(exchange, rows, std::move(asked));
        rowSearch->begin([this] {
            hasEnded = true;
            took = runLoop.now() - began;
        });
    }
    std::size_t heard() const { return rowSearch->heard().count(); }

    // Requests that went to this address.
    std::size_t requestsTo(const std::string& address) {
        return static_cast<std::size_t>(std::ranges::count_if(
            all, [&](const std::string& line) { return line.starts_with(address + ':'); }));
    }
    void finishAndCount() {
        finish();
        all = sent();
    }

    std::unique_ptr<RowSearch> rowSearch;
    std::chrono::milliseconds began{0};
    std::chrono::milliseconds took{0};
    Lines all;
};

} // namespace

TEST_F(RowSearchTest, EndsSoonAfterTheLastUnitOfARowHasAnswered) {
    addUnits(1, 3);
    search({row(2, 1, name("A")), row(3, 3, name("B"))});
    finish();
    EXPECT_EQ(heard(), 3U) << "units of no row count too";
    EXPECT_LT(took, 100ms);
    EXPECT_TRUE(rowSearch->hasAsked());
    EXPECT_EQ(rowSearch->failure(), std::nullopt);
}

TEST_F(RowSearchTest, WhereRowsTakeAnAddressEverybodyHasTheWholeTime) {
    addUnits(1, 3);
    search({row(2, 1, move(9))});
    finish();
    EXPECT_GE(took, 1500ms);
    search({row(2, 1, rename(9))});
    finish();
    EXPECT_GE(took, 1500ms);
}

TEST_F(RowSearchTest, AUnitThatHearsNoBroadcastIsAskedAtTheAddressOfItsRow) {
    addUnits(1, 1);
    isHeldBack = true;
    search({row(2, 1,
                {{UnitParameter::internalIPAddress, address(1)},
                 {UnitParameter::devicePortNumber, "10001"}})});
    runLoop.advanceBy(2500ms); // the discovery ends without an answer
    isHeldBack = false;
    finishAndCount();
    EXPECT_EQ(heard(), 1U);
    EXPECT_GE(requestsTo(address(1)), 1U);
    EXPECT_TRUE(std::ranges::find(all, address(1) + ":10001 ^^IdX") != all.end());
}

TEST_F(RowSearchTest, AUnitOfAKeptPlanIsAskedWhereThePlanSawIt) {
    addUnits(1, 1);
    isHeldBack = true;
    WantedRow wanted = row(2, 1, move(9));
    SeenUnit seen;
    seen.record.setValue(UnitParameter::internalIPAddress, address(1));
    seen.record.setValue(UnitParameter::devicePortNumber, "10000");
    wanted.seen = seen;
    search({wanted});
    runLoop.advanceBy(2500ms);
    isHeldBack = false;
    finishAndCount();
    EXPECT_EQ(heard(), 1U);
    EXPECT_EQ(requestsTo(address(9)), 0U);
}

TEST_F(RowSearchTest, AUnitOfWhichNoAddressIsKnownIsNotAskedAlone) {
    search({row(2, 1, name("A"))});
    finishAndCount();
    EXPECT_EQ(heard(), 0U);
    for (const std::string& line : all) {
        EXPECT_TRUE(line.starts_with("192.168.255.255:")) << line;
    }
}

TEST_F(RowSearchTest, WhatNobodyCouldBeAskedIsToldWithTheReason) {
    for (int i = 0; i < 20; ++i) {
        systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    }
    search({row(2, 1, {{UnitParameter::internalIPAddress, address(1)}})});
    finish();
    EXPECT_FALSE(rowSearch->hasAsked());
    EXPECT_NE(rowSearch->failure(), std::nullopt);
}

TEST_F(RowSearchTest, WhatIsInterruptedEndsWithoutAskingAnybodyElse) {
    search({row(2, 1, {{UnitParameter::internalIPAddress, address(1)}})});
    runLoop.advanceBy(10ms);
    rowSearch->interrupt();
    EXPECT_TRUE(rowSearch->isInterrupted());
    finishAndCount();
    EXPECT_EQ(requestsTo(address(1)), 0U);
    EXPECT_LT(took, 100ms);
}

TEST_F(RowSearchTest, AnInterruptedRequestAtALastAddressEndsToo) {
    search({row(2, 1, {{UnitParameter::internalIPAddress, address(1)}})});
    runLoop.advanceBy(2500ms);
    ASSERT_FALSE(hasEnded);
    rowSearch->interrupt();
    runLoop.advanceBy(20ms);
    EXPECT_TRUE(hasEnded);
}

TEST_F(RowSearchTest, EachInterfaceIsAskedAtItsOwnBroadcastAddress) {
    HostInterface second = ownInterface();
    second.name = "kx1";
    second.link = 4;
    second.networks = {{.address = 0x0A000001U, .mask = 0xFFFFFF00U}};
    systemCalls.addLink("kx1", 4);
    search({row(2, 1, {{UnitParameter::internalIPAddress, "10.0.0.7"}})}, {ownInterface(), second});
    finishAndCount();
    EXPECT_GE(requestsTo("192.168.255.255"), 1U);
    EXPECT_GE(requestsTo("10.0.0.255"), 1U);
    EXPECT_GE(requestsTo("10.0.0.7"), 1U);
    EXPECT_EQ(systemCalls.sentDatagrams().back().link, 4U)
        << "by the link whose network has the address";
}

TEST_F(RowSearchTest, EverybodyIsAskedOnceMoreBeforeAUnitIsCalledSilent) {
    addUnits(1, 1);
    isHeldBack = true;
    search({row(2, 1, name("A"))});
    runLoop.advanceBy(2500ms);
    ASSERT_FALSE(hasEnded);
    isHeldBack = false;
    finish();
    EXPECT_EQ(heard(), 1U);
}

} // namespace kx
