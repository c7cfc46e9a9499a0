// A discovery: a request to everybody, sent again within the time of waiting because datagrams get
// lost, and the units that answer.
//
// Without a fixed number the request is sent at the beginning and at the half of the time. From
// then on it goes out again every 24th part of the time, until every unit that was heard has
// answered the latest request, and never more than twelve times. So a network without losses sees
// two requests, and where a third of the answers gets lost a unit has twelve chances.
//
// Threading and ownership: see Operation.h. The exchange must outlive the discovery.

#pragma once

#include "conversation/HeardUnits.h"
#include "conversation/IdentityWitness.h"
#include "conversation/Operation.h"
#include "conversation/UnitExchange.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace kx {

struct DiscoveryPlan {
    std::vector<UnitTarget> everybody = {}; // each request goes to all of these
    std::chrono::milliseconds wait{2000};
    std::optional<int> tries = {}; // requests in all, spread evenly over the wait

    // Asked after each answer. Once it is true, the discovery ends after `settling`, in which
    // others who claim to be the same unit have time to answer. It lasts twice the time that this
    // answer took where that is longer, unless `settling` is 0. May be empty.
    std::function<bool(const HeardUnits&)> isEnough = {};
    std::chrono::milliseconds settling{0};
};

// Requests to everybody do not follow each other more closely.
inline constexpr std::chrono::milliseconds shortestTimeBetweenRequests{10};

class Discovery final : public Operation, private UnitExchange::Listener {
public:
    Discovery(UnitExchange& exchange, DiscoveryPlan plan);

    const HeardUnits& units() const { return _units; }

    // What the answers contradict in each other and in their senders, in the order in which they
    // came. Two hosts with one serial number and one hardware address are one unit in units().
    const std::vector<Finding>& contradictions() const { return _contradictions; }

    // Whether two hosts have answered under this serial number; the finding that tells them.
    std::optional<TwoHostsOfOneSerial> twoHostsOf(std::string_view serial) const;

    // Why a request was not sent the last time; absent when all were sent. A first request that
    // fails everywhere ends the discovery.
    const std::optional<SendFailure>& failure() const { return _failure; }

    // At least one request was sent.
    bool hasAsked() const { return _sent > 0; }

    void interrupt() override { finish(); }

private:
    void start() override;
    void unitDidTell(const HeardUnit& unit) override;
    void request();
    void scheduleRequest();
    void finish();
    bool hasEveryoneAnswered() const;

    DiscoveryPlan _plan;
    HeardUnits _units;
    IdentityWitness _witness;
    std::vector<Finding> _contradictions;
    std::optional<SendFailure> _failure;
    int _requests = 0;
    int _sent = 0;
    bool _isSettling = false;
    RunLoop::Handle _nextRequest;
    RunLoop::Handle _deadline;
};

} // namespace kx
