// The contract of support/HostResolver.h: tests that every host resolver must pass.
//
// A test program runs them against its resolver by
//
//     INSTANTIATE_TYPED_TEST_SUITE_P(Thread, HostResolverContract, ThreadHostResolverTrait);
//
// with a trait that is made anew for each test and has
//
//     HostResolver& resolver();
//     // A name that resolves to 127.0.0.1, perhaps among others; and a name that does not resolve.
//     std::string knownName();
//     std::string unknownName();
//     // Runs the resolver's loop until the condition holds; false when it does not within a
//     // generous time.
//     bool runUntil(const std::function<bool()>& condition);
//     // Runs the loop long enough for a report that should not come.
//     void runAWhile();

#pragma once

#include "addresses/SocketAddressRecord.h"
#include "support/HostResolver.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace kx {

template<typename Trait>
class HostResolverContract : public testing::Test {
protected:
    using RequestPointer = std::unique_ptr<HostResolver::Request>;

    // Starts a request and keeps its report.
    RequestPointer startRecorded(const std::string& name) {
        return start(name,
                     [this](const HostResolution& resolution) { reports.push_back(resolution); });
    }
    RequestPointer start(const std::string& name, HostResolver::Report report) {
        auto request = trait.resolver().requestForHostName(name);
        StreamError startError;
        EXPECT_TRUE(request->startResolution(std::move(report), startError));
        return request;
    }
    bool runUntilReports(std::size_t count) {
        return trait.runUntil([this, count] { return reports.size() >= count; });
    }

    Trait trait;
    std::vector<HostResolution> reports;
};

TYPED_TEST_SUITE_P(HostResolverContract);

TYPED_TEST_P(HostResolverContract, AKnownNameIsReportedOnceWithItsAddresses) {
    const auto request = this->startRecorded(this->trait.knownName());
    ASSERT_TRUE(this->runUntilReports(1));
    this->trait.runAWhile();
    ASSERT_EQ(this->reports.size(), 1U);
    EXPECT_EQ(this->reports[0].error.domain, kCFStreamErrorDomainNone);
    const auto addresses = this->reports[0].addresses.value_or(std::vector<Bytes>{});
    const auto loopback = dataForAddress(0x7F000001U, 0);
    EXPECT_EQ(std::count(addresses.begin(), addresses.end(), loopback), 1);
}

TYPED_TEST_P(HostResolverContract, AnUnknownNameIsReportedAsAnErrorWithoutAddresses) {
    const auto request = this->startRecorded(this->trait.unknownName());
    ASSERT_TRUE(this->runUntilReports(1));
    this->trait.runAWhile();
    ASSERT_EQ(this->reports.size(), 1U);
    EXPECT_EQ(this->reports[0].error.domain, kCFStreamErrorDomainNetDB);
    EXPECT_NE(this->reports[0].error.code, 0);
    EXPECT_FALSE(this->reports[0].addresses.has_value());
}

TYPED_TEST_P(HostResolverContract, TheReportNeverComesFromInsideTheStart) {
    const auto request = this->startRecorded(this->trait.knownName());
    EXPECT_TRUE(this->reports.empty());
}

TYPED_TEST_P(HostResolverContract, AStartThatSucceedsLeavesTheErrorAlone) {
    const auto request = this->trait.resolver().requestForHostName(this->trait.knownName());
    StreamError startError{kCFStreamErrorDomainPOSIX, 42};
    EXPECT_TRUE(request->startResolution([](const HostResolution&) {}, startError));
    EXPECT_EQ(startError.domain, kCFStreamErrorDomainPOSIX);
    EXPECT_EQ(startError.code, 42);
}

TYPED_TEST_P(HostResolverContract, ADestroyedRequestReportsNothing) {
    auto request = this->startRecorded(this->trait.knownName());
    request.reset();
    this->trait.runAWhile();
    EXPECT_TRUE(this->reports.empty());
}

TYPED_TEST_P(HostResolverContract, EachOfSeveralRequestsGetsItsOwnReport) {
    bool known = false;
    bool unknown = false;
    const auto one = this->start(this->trait.knownName(), [&](const HostResolution& resolution) {
        known = resolution.addresses.has_value();
    });
    const auto other =
        this->start(this->trait.unknownName(), [&](const HostResolution& resolution) {
            unknown = !resolution.addresses.has_value();
        });
    EXPECT_TRUE(this->trait.runUntil([&] { return known && unknown; }));
}

TYPED_TEST_P(HostResolverContract, AReportMayDestroyItsOwnRequest) {
    std::unique_ptr<HostResolver::Request> request;
    auto token = std::make_shared<int>(7);
    const std::weak_ptr<int> observed = token;
    request = this->start(
        this->trait.knownName(), [&, kept = std::move(token)](const HostResolution& resolution) {
            request.reset();
            EXPECT_FALSE(observed.expired()) << "the callable lives until the call returned";
            this->reports.push_back(resolution); // the resolution lives as long
        });
    ASSERT_TRUE(this->runUntilReports(1));
    this->trait.runAWhile();
    EXPECT_EQ(this->reports.size(), 1U);
    EXPECT_TRUE(this->reports[0].addresses.has_value());
    EXPECT_TRUE(observed.expired());
}

TYPED_TEST_P(HostResolverContract, AReportMayDestroyAnotherRequest) {
    std::unique_ptr<HostResolver::Request> one;
    std::unique_ptr<HostResolver::Request> other;
    one = this->start(this->trait.knownName(), [&](const HostResolution& resolution) {
        other.reset();
        this->reports.push_back(resolution);
    });
    other = this->start(this->trait.knownName(), [&](const HostResolution& resolution) {
        one.reset();
        this->reports.push_back(resolution);
    });
    ASSERT_TRUE(this->runUntilReports(1));
    this->trait.runAWhile();
    EXPECT_EQ(this->reports.size(), 1U);
}

TYPED_TEST_P(HostResolverContract, AReportMayStartAnotherRequest) {
    std::unique_ptr<HostResolver::Request> next;
    const auto request = this->start(this->trait.unknownName(), [&](const HostResolution&) {
        next = this->startRecorded(this->trait.knownName());
    });
    ASSERT_TRUE(this->runUntilReports(1));
    EXPECT_TRUE(this->reports[0].addresses.has_value());
}

REGISTER_TYPED_TEST_SUITE_P(HostResolverContract, AKnownNameIsReportedOnceWithItsAddresses,
                            AnUnknownNameIsReportedAsAnErrorWithoutAddresses,
                            TheReportNeverComesFromInsideTheStart,
                            AStartThatSucceedsLeavesTheErrorAlone, ADestroyedRequestReportsNothing,
                            EachOfSeveralRequestsGetsItsOwnReport, AReportMayDestroyItsOwnRequest,
                            AReportMayDestroyAnotherRequest, AReportMayStartAnotherRequest);

} // namespace kx
