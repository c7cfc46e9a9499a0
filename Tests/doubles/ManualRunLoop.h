// A run loop whose clock and whose descriptors the test moves by hand.
//
// Nothing happens until the test says so: time passes in advanceBy(), and descriptors are numbers
// that are readable when the test says so. Every number from 0 on counts as open. In all other
// respects it keeps the contract of support/RunLoop.h.

#pragma once

#include "support/Require.h"
#include "support/RunLoop.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <stdexcept>
#include <utility>
#include <vector>

namespace kx {

class ManualRunLoop : public RunLoop {
public:
    using Milliseconds = std::chrono::milliseconds;

    Handle watchForReading(int descriptor, std::function<void()> readable) override {
        if (_refusesToWatch || descriptor < 0) {
            return nullptr;
        }
        const auto order = _nextOrder++;
        _watches.emplace(
            order, Watch{descriptor, std::make_shared<std::function<void()>>(std::move(readable))});
        return std::make_unique<Registration>([this, order] { _watches.extract(order); });
    }

    Handle callOnceAfter(Milliseconds delay, std::function<void()> call) override {
        const CallKey key{_now + std::clamp(delay, Milliseconds(0), longestDelay), _nextOrder++};
        _calls.emplace(key, std::move(call));
        return std::make_unique<Registration>([this, key] { _calls.extract(key); });
    }

    // Time passes from one due time to the next, and a millisecond with each turn in which
    // something can be read. Throws std::logic_error when there is nothing left to call, because a
    // real loop would rest for ever.
    void runUntil(const std::function<bool()>& isDone) override {
        while (!isDone()) {
            require(!isHeld(), "the loop is not held", "Sources/support/RunLoop");
            if (!readyWatches().empty()) {
                _now += Milliseconds(1);
            } else if (!_calls.empty()) {
                _now = std::max(_now, _calls.begin()->first.first);
            } else {
                throw std::logic_error("the loop waits for nothing");
            }
            runOneTurn();
        }
    }

    Handle holdCallbacks() override {
        ++_holds;
        return std::make_unique<Registration>([this] { --_holds; });
    }

    // Lets time pass. The clock stops at each due time on the way, in order, for as many turns as
    // there are calls due. Calls that are requested meanwhile run too when they fall due within the
    // time.
    void advanceBy(Milliseconds time) {
        const auto end = _now + time;
        do {
            _now = nothingIsDueBy(end) ? end : std::max(_calls.begin()->first.first, _now);
            runOneTurn();
        } while (!nothingIsDueBy(end));
        _now = end;
    }

    // Runs one turn in which `descriptor` can be read.
    void makeReadable(int descriptor) {
        const bool wasReadable = _readable.count(descriptor) > 0;
        setReadable(descriptor, true);
        runOneTurn();
        setReadable(descriptor, wasReadable);
    }

    // Sets whether `descriptor` can be read after this call.
    void setReadable(int descriptor, bool readable) {
        if (readable) {
            _readable.insert(descriptor);
        } else {
            _readable.erase(descriptor);
        }
    }

    // Calls the watches of readable descriptors and the calls that are due, each once, or nothing
    // while the loop is held; no time passes. Calls and watches that are requested meanwhile wait
    // for the next turn.
    void runOneTurn() {
        const auto firstLater = _nextOrder;
        for (const auto order : readyWatches()) {
            const auto watch = _watches.find(order);
            if (!isHeld() && watch != _watches.end() &&
                _readable.count(watch->second.descriptor) > 0) {
                const auto readable = watch->second.readable;
                (*readable)();
            }
        }
        while (!isHeld() && !_calls.empty() &&
               _calls.begin()->first <= CallKey{_now, firstLater - 1}) {
            const auto due = _calls.extract(_calls.begin());
            due.mapped()();
        }
    }

    // After this, the system cannot watch descriptors.
    void refuseToWatch() { _refusesToWatch = true; }

    std::size_t watchCount() const { return _watches.size(); }
    std::size_t pendingCallCount() const { return _calls.size(); }
    bool isWatching(int descriptor) const {
        return std::any_of(_watches.begin(), _watches.end(), [descriptor](const auto& entry) {
            return entry.second.descriptor == descriptor;
        });
    }

    // The time since the loop was made.
    Milliseconds now() const { return _now; }

private:
    struct Watch {
        int descriptor;
        std::shared_ptr<std::function<void()>> readable; // shared with the running call
    };
    using CallKey = std::pair<Milliseconds, std::uint64_t>; // due time, order of request

    class Registration final : public Source {
    public:
        // `end` extracts and does not erase, because the objects in a callback may end other
        // registrations in turn.
        explicit Registration(std::function<void()> end)
            : _end(std::move(end)) {}
        ~Registration() override { _end(); }

    private:
        std::function<void()> _end;
    };

    bool isHeld() const { return _holds > 0; }
    bool nothingIsDueBy(Milliseconds time) const {
        return isHeld() || _calls.empty() || _calls.begin()->first.first > time;
    }

    std::vector<std::uint64_t> readyWatches() const {
        std::vector<std::uint64_t> ready;
        for (const auto& [order, watch] : _watches) {
            if (_readable.count(watch.descriptor) > 0) {
                ready.push_back(order);
            }
        }
        return ready;
    }

    int _holds = 0;
    Milliseconds _now{0};
    std::uint64_t _nextOrder = 1;
    std::map<std::uint64_t, Watch> _watches;
    std::map<CallKey, std::function<void()>> _calls;
    std::set<int> _readable;
    bool _refusesToWatch = false;
};

} // namespace kx
