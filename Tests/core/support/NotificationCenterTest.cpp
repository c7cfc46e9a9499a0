#include "support/NotificationCenter.h"

#include <gtest/gtest.h>

#include <optional>

namespace kx {

namespace {

class NotificationCenterTest : public testing::Test {
protected:
    NotificationCenter::Selector note(const std::string& word) {
        return [this, word](const Notification&) { order += word; };
    }

    NotificationCenter center;
    std::string order;
    int sender = 0;
    int otherSender = 0;
};

} // namespace

TEST_F(NotificationCenterTest, ObserversAreCalledBeforeThePostReturnsInTheirOrder) {
    const auto first = center.addObserver(note("a"), "name", &sender);
    const auto second = center.addObserver(note("b"), "name", &sender);
    center.postNotification({"name", &sender, {}});
    EXPECT_EQ(order, "ab");
}

TEST_F(NotificationCenterTest, TheNotificationArrivesWhole) {
    std::optional<Notification> arrived;
    const auto registration = center.addObserver(
        [&](const Notification& notification) { arrived = notification; }, "name", &sender);
    center.postNotification({"name", &sender, {{"key", "value"}}});
    ASSERT_TRUE(arrived.has_value());
    EXPECT_EQ(arrived->name, "name");
    EXPECT_EQ(arrived->object, &sender);
    EXPECT_EQ(arrived->userInfo, (PropertyDictionary{{"key", "value"}}));
}

TEST_F(NotificationCenterTest, OtherNamesAndOtherSendersAreNotHeard) {
    const auto registration = center.addObserver(note("a"), "name", &sender);
    center.postNotification({"other", &sender, {}});
    center.postNotification({"name", &otherSender, {}});
    EXPECT_EQ(order, "");
}

TEST_F(NotificationCenterTest, ADestroyedRegistrationHearsNothing) {
    { const auto registration = center.addObserver(note("a"), "name", &sender); }
    const auto second = center.addObserver(note("b"), "name", &sender);
    center.postNotification({"name", &sender, {}});
    EXPECT_EQ(order, "b");
}

TEST_F(NotificationCenterTest, AnObserverMayEndItselfAndOthersWhileBeingCalled) {
    std::optional<NotificationCenter::Registration> first;
    std::optional<NotificationCenter::Registration> second;
    auto kept = std::make_shared<std::string>("a");
    first = center.addObserver(
        [&, kept](const Notification&) {
            first.reset();
            second.reset();
            order += *kept;
        },
        "name", &sender);
    kept.reset();
    second = center.addObserver(note("b"), "name", &sender);
    const auto third = center.addObserver(note("c"), "name", &sender);
    center.postNotification({"name", &sender, {}});
    center.postNotification({"name", &sender, {}});
    EXPECT_EQ(order, "acc");
}

TEST_F(NotificationCenterTest, WhoRegistersDuringAPostHearsTheNextOne) {
    std::vector<NotificationCenter::Registration> later;
    const auto first = center.addObserver(
        [&](const Notification&) {
            order += "a";
            later.push_back(center.addObserver(note("b"), "name", &sender));
        },
        "name", &sender);
    center.postNotification({"name", &sender, {}});
    EXPECT_EQ(order, "a");
    center.postNotification({"name", &sender, {}});
    EXPECT_EQ(order, "aab");
}

TEST_F(NotificationCenterTest, AnObserverMayPostAnother) {
    const auto inner = center.addObserver(note("inner"), "inner", &sender);
    const auto outer = center.addObserver(
        [&](const Notification&) {
            order += "(";
            center.postNotification({"inner", &sender, {}});
            order += ")";
        },
        "outer", &sender);
    center.postNotification({"outer", &sender, {}});
    EXPECT_EQ(order, "(inner)");
}

TEST(NotificationCenter, TheDefaultCenterIsOneForTheProcess) {
    EXPECT_EQ(&NotificationCenter::defaultCenter(), &NotificationCenter::defaultCenter());
}

} // namespace kx
