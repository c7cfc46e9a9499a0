#include "Simulator/FaultInjector.h"

#include "simulator/Literals.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace kx::simulator {
namespace {

using std::chrono::milliseconds;

const Bytes replyText = bytesOfText("a reply of some twenty bytes");

// The deliveries of `count` equal replies, as one list.
std::vector<Delivery> deliveriesOf(const FaultPlan& plan, int count) {
    FaultInjector faults(plan);
    std::vector<Delivery> all;
    for (; count != 0; --count) {
        for (Delivery& delivery : faults.deliveriesOf(replyText)) {
            all.push_back(std::move(delivery));
        }
    }
    return all;
}

bool same(const std::vector<Delivery>& left, const std::vector<Delivery>& right) {
    return std::ranges::equal(left, right, [](const Delivery& one, const Delivery& other) {
        return one.delay == other.delay && one.payload == other.payload;
    });
}

TEST(FaultInjector, WithoutAPlanEveryReplyLeavesOnceAndAtOnce) {
    const auto deliveries = deliveriesOf({}, 100);
    ASSERT_EQ(deliveries.size(), 100U);
    for (const Delivery& delivery : deliveries) {
        EXPECT_EQ(delivery.delay, milliseconds(0));
        EXPECT_EQ(delivery.payload, replyText);
    }
}

TEST(FaultInjector, LateRepliesWaitAsLongAsTold) {
    const auto deliveries = deliveriesOf({.late = milliseconds(2500)}, 1);
    ASSERT_EQ(deliveries.size(), 1U);
    EXPECT_EQ(deliveries[0].delay, milliseconds(2500));
}

TEST(FaultInjector, ShareOfLostRepliesIsAboutThePercentage) {
    EXPECT_EQ(deliveriesOf({.losePercent = 100}, 1000).size(), 0U);
    const std::size_t left = deliveriesOf({.losePercent = 30}, 1000).size();
    EXPECT_GT(left, 650U);
    EXPECT_LT(left, 750U);
}

TEST(FaultInjector, DuplicatesAreEqualAndFollowEachOther) {
    const auto deliveries = deliveriesOf({.duplicatePercent = 100}, 10);
    ASSERT_EQ(deliveries.size(), 20U);
    for (const Delivery& delivery : deliveries) {
        EXPECT_EQ(delivery.payload, replyText);
    }
}

TEST(FaultInjector, OvertakenRepliesWaitBesidesBeingLate) {
    std::set<milliseconds> delays;
    for (const Delivery& delivery :
         deliveriesOf({.late = milliseconds(10), .reorderPercent = 50}, 100)) {
        delays.insert(delivery.delay);
    }
    EXPECT_EQ(delays, (std::set{milliseconds(10), milliseconds(10) + overtakingTime}));
}

TEST(FaultInjector, TruncatedRepliesKeepTheirBeginning) {
    const auto cut = deliveriesOf({.truncatedLength = 5}, 1);
    ASSERT_EQ(cut.size(), 1U);
    EXPECT_EQ(cut[0].payload, bytesOfText("a rep"));
    EXPECT_TRUE(deliveriesOf({.truncatedLength = 0}, 1)[0].payload.empty());
    EXPECT_EQ(deliveriesOf({.truncatedLength = 500}, 1)[0].payload, replyText);
}

TEST(FaultInjector, MalformedRepliesAreShorterLongerOrOfOtherBytes) {
    bool shorter = false;
    bool longer = false;
    bool otherBytes = false;
    for (const Delivery& delivery : deliveriesOf({.malformPercent = 100}, 500)) {
        EXPECT_NE(delivery.payload, replyText);
        EXPECT_LE(delivery.payload.size(), replyText.size() + 200);
        shorter |= delivery.payload.size() < replyText.size();
        longer |= delivery.payload.size() > replyText.size();
        otherBytes |= delivery.payload.size() == replyText.size();
    }
    EXPECT_TRUE(shorter);
    EXPECT_TRUE(longer);
    EXPECT_TRUE(otherBytes);
}

TEST(FaultInjector, EqualSeedsGiveEqualFaults) {
    FaultPlan plan{.losePercent = 20,
                   .duplicatePercent = 20,
                   .reorderPercent = 20,
                   .malformPercent = 20,
                   .seed = 7};
    const auto first = deliveriesOf(plan, 200);
    EXPECT_TRUE(same(first, deliveriesOf(plan, 200)));
    plan.seed = 8;
    EXPECT_FALSE(same(first, deliveriesOf(plan, 200)));
}

} // namespace
} // namespace kx::simulator
