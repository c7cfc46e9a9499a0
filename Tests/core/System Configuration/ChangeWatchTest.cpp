#include "System Configuration/ChangeWatch.h"

#include "doubles/MemoryConfigurationStore.h"
#include "doubles/RecordedSystemLog.h"

#include <gtest/gtest.h>

#include <memory_resource>

namespace kx {

namespace {

// Lets a number of allocations pass, and then has no more memory.
class LimitedMemory final : public std::pmr::memory_resource {
public:
    explicit LimitedMemory(int allocations)
        : _left(allocations) {}
    ~LimitedMemory() override { std::pmr::set_default_resource(_previous); }

private:
    void* do_allocate(std::size_t bytes, std::size_t alignment) override {
        auto* source = _left-- > 0 ? _previous : std::pmr::null_memory_resource();
        return source->allocate(bytes, alignment);
    }
    void do_deallocate(void* memory, std::size_t bytes, std::size_t alignment) override {
        _previous->deallocate(memory, bytes, alignment);
    }
    bool do_is_equal(const memory_resource& other) const noexcept override {
        return this == &other;
    }

    int _left;
    std::pmr::memory_resource* _previous = std::pmr::set_default_resource(this);
};

class ChangeWatchTest : public testing::Test {
protected:
    int create() {
        return CreateIPAddressListChangeCallbackSCF(
            store,
            [](DynamicStoreSession&, const std::vector<std::string>& changedKeys, void* info) {
                *static_cast<std::vector<std::string>*>(info) = changedKeys;
            },
            &delivered, &storeRef, &sourceRef);
    }
    void expectNoWatch() const {
        EXPECT_EQ(storeRef, nullptr);
        EXPECT_EQ(sourceRef, nullptr);
        EXPECT_EQ(store.openSessionCount(), 0U);
    }

    MemoryConfigurationStore store;
    std::vector<std::string> delivered;
    std::unique_ptr<DynamicStoreSession> storeRef;
    std::unique_ptr<ConfigurationChangeSource> sourceRef;
};

// The log line of a broken contract of the setup.
std::string brokenSetup(const std::string& escapedExpression) {
    return "Assertion failed: \\(" + escapedExpression +
           "\\), function .*CreateIPAddressListChangeCallbackSCF.*, "
           "Sources/System Configuration/SystemConfiguration";
}

} // namespace

TEST_F(ChangeWatchTest, WatchesTheIPv4StateOfEveryServiceOnceItsSourceRuns) {
    ASSERT_EQ(create(), 0);
    EXPECT_EQ(store.sessionNames(), std::vector<std::string>{"AddIPAddressListChangeCallbackSCF"});
    store.setValue("State:/Network/Service/A/IPv4", {{"early", 1}});
    store.deliverChanges();
    EXPECT_EQ(delivered, std::vector<std::string>{}) << "the source does not run yet";

    sourceRef->addToRunLoop();
    store.setValue("State:/Network/Service/A/IPv4", {{"late", 1}});
    store.setValue("State:/Network/Service/B/IPv4", {});
    store.setValue("State:/Network/Service/A/IPv6", {});
    store.setValue("State:/Network/Service/A/B/IPv4", {});
    store.setValue("State:/Network/Interface/en0/IPv4", {});
    store.setValue("Setup:/Network/Service/A/IPv4", {});
    store.deliverChanges();
    EXPECT_EQ(delivered, (std::vector<std::string>{"State:/Network/Service/A/IPv4",
                                                   "State:/Network/Service/B/IPv4"}));
    sourceRef.reset();
}

TEST_F(ChangeWatchTest, ASessionThatCannotBeOpenedFailsWithTheStoresCode) {
    store.refusesSessions = true;
    store.lastError = 1002;
    EXPECT_EQ(create(), 1002);
    expectNoWatch();
}

TEST_F(ChangeWatchTest, AFailureWithoutACodeIsTheGenericOne) {
    store.refusesSessions = true;
    EXPECT_EQ(create(), 1001);
    expectNoWatch();
}

TEST_F(ChangeWatchTest, APatternThatIsRefusedClosesTheSession) {
    store.refusesNotificationKeys = true;
    store.lastError = 1003;
    EXPECT_EQ(create(), 1003);
    expectNoWatch();
}

TEST_F(ChangeWatchTest, ASourceThatCannotBeMadeClosesTheSession) {
    store.refusesSources = true;
    EXPECT_EQ(create(), 1001);
    expectNoWatch();
}

TEST_F(ChangeWatchTest, APatternThatCannotBeMadeFailsWithTheStoresCode) {
    const LimitedMemory memory(0);
    store.lastError = 1004;
    EXPECT_EQ(create(), 1004);
    expectNoWatch();
}

TEST_F(ChangeWatchTest, AListOfPatternsThatCannotBeMadeHasACodeOfItsOwn) {
    const LimitedMemory memory(1);
    store.lastError = 1004;
    EXPECT_EQ(create(), -4960);
    expectNoWatch();
}

TEST(MySCError, SuccessIsZeroWhateverFailedBefore) {
    MemoryConfigurationStore store;
    store.lastError = 1002;
    EXPECT_EQ(MySCError(store, true), 0);
    EXPECT_EQ(MySCError(store, false), 1002);
    store.lastError = 0;
    EXPECT_EQ(MySCError(store, false), 1001);
}

using ChangeWatchDeathTest = ChangeWatchTest;

TEST_F(ChangeWatchDeathTest, BothSlotsMustExist) {
    EXPECT_DEATH(CreateIPAddressListChangeCallbackSCF(store, nullptr, nullptr, nullptr, &sourceRef),
                 brokenSetup("storeRef != NULL"));
    EXPECT_DEATH(CreateIPAddressListChangeCallbackSCF(store, nullptr, nullptr, &storeRef, nullptr),
                 brokenSetup("sourceRef != NULL"));
}

TEST_F(ChangeWatchDeathTest, TheSlotOfTheSessionMustBeFree) {
    storeRef = store.openSession("taken", nullptr, nullptr);
    EXPECT_DEATH(create(), brokenSetup("\\*storeRef == NULL"));
}

TEST_F(ChangeWatchDeathTest, TheSlotOfTheSourceMustBeFree) {
    const auto session = store.openSession("taken", nullptr, nullptr);
    sourceRef = session->createRunLoopSource();
    EXPECT_DEATH(create(), brokenSetup("\\*sourceRef == NULL"));
    sourceRef.reset();
}

TEST_F(ChangeWatchDeathTest, AnOutcomeIsWholeOrNothing) {
    ASSERT_EQ(create(), 0);
    const auto line = [](const std::string& slot) {
        return "Assertion failed: \\(\\(err == noErr\\) == \\(\\*" + slot +
               " != NULL\\)\\), function .+, Sources/System Configuration/SystemConfiguration";
    };
    requireWatchOutcome(0, storeRef.get(), sourceRef.get());
    requireWatchOutcome(1001, nullptr, nullptr);
    EXPECT_DEATH(requireWatchOutcome(0, nullptr, sourceRef.get()), line("storeRef"));
    EXPECT_DEATH(requireWatchOutcome(1001, storeRef.get(), nullptr), line("storeRef"));
    EXPECT_DEATH(requireWatchOutcome(0, storeRef.get(), nullptr), line("sourceRef"));
    EXPECT_DEATH(requireWatchOutcome(1001, nullptr, sourceRef.get()), line("sourceRef"));
    sourceRef.reset();
}

} // namespace kx
