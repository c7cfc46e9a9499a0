// Many lookups at once. Requests, resolvers and loops end at any moment of them.

#include "DescriptorsAtRest.h"
#include "platform/posix/ThreadHostResolver.h"

#include <chrono>
#include <cstddef>
#include <memory>
#include <random>
#include <string>
#include <thread>
#include <vector>

namespace kx {

namespace {

using std::chrono::microseconds;
using std::chrono::milliseconds;

constexpr std::size_t requestCount = 40;

// A loop, a resolver and requests "0", "1" and so on. Their lookups take up to two milliseconds and
// answer with the name. Destroying a crowd abandons the lookups that still run.
class Crowd {
public:
    // Every lookup holds a share of `token`.
    Crowd(const std::shared_ptr<int>& token, unsigned seed)
        : _random(seed)
        , _resolver(_loop, [token](const std::string& name) {
            std::this_thread::sleep_for(microseconds(std::stoul(name) * 389 % 2000));
            return HostResolution{{}, std::vector<Bytes>{Bytes(name.begin(), name.end())}};
        }) {
        for (std::size_t i = 0; i < requestCount; ++i) {
            start(i);
        }
    }

    void cancelOne() { _requests[any(requestCount)].reset(); }

    void runATurn() { _loop.runOnce(milliseconds(any(2))); }

    // Returns false when some requests have no report after a generous time.
    bool runToTheEnd() {
        return runLoopUntil(_loop, [this] { return unreported() == 0; });
    }

    bool isTimeForAnother() { return any(2) == 0; }

private:
    std::size_t any(std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(_random);
    }

    void start(std::size_t number) {
        const std::string name = std::to_string(number);
        _requests[number] = _resolver.requestForHostName(name);
        StreamError error;
        ASSERT_TRUE(_requests[number]->startResolution(
            [this, number](const HostResolution& resolution) { take(number, resolution); }, error))
            << error.code;
    }

    // Some reports end their own request, and some end another one.
    void take(std::size_t number, const HostResolution& resolution) {
        const std::string name = std::to_string(number);
        EXPECT_EQ(resolution.addresses, (std::vector<Bytes>{Bytes(name.begin(), name.end())}));
        EXPECT_NE(_requests[number], nullptr) << "a report of a request that is gone";
        EXPECT_FALSE(_isReported[number]) << "a second report";
        _isReported[number] = true;
        if (isTimeForAnother()) {
            _requests[number].reset();
        } else if (isTimeForAnother()) {
            cancelOne();
        }
    }

    std::size_t unreported() const {
        std::size_t count = 0;
        for (std::size_t i = 0; i < requestCount; ++i) {
            count += _requests[i] != nullptr && !_isReported[i] ? 1 : 0;
        }
        return count;
    }

    std::mt19937 _random;
    PollRunLoop _loop;
    ThreadHostResolver _resolver;
    std::vector<bool> _isReported = std::vector<bool>(requestCount);
    std::vector<std::unique_ptr<HostResolver::Request>> _requests{requestCount};
};

} // namespace

TEST(ThreadHostResolverStress, WhateverEndsWhileLookupsRunNothingIsReportedTwiceOrLeft) {
    PollRunLoop loop;
    const auto descriptorsBefore = descriptorsAtRest(loop);
    const auto token = std::make_shared<int>();
    for (unsigned seed = 0; seed < 30; ++seed) {
        Crowd crowd(token, seed);
        do {
            crowd.cancelOne();
            crowd.runATurn();
        } while (crowd.isTimeForAnother());
        if (seed % 2 == 0) { // the other half ends with lookups still running
            EXPECT_TRUE(crowd.runToTheEnd());
        }
    }
    EXPECT_EQ(descriptorsAtRest(loop), descriptorsBefore);
    EXPECT_EQ(token.use_count(), 1) << "a lookup is left";
}

} // namespace kx
