#include "conversation/AddressBindings.h"

#include "addresses/ARPToolPath.h"

#include <deque>
#include <utility>

namespace kx {

struct AuthorizedAddressBindings::Turns {
    struct Change {
        std::vector<std::string> arguments; // of the tool
        Done done;
    };

    explicit Turns(AuthorizationService& service)
        : authorization(service, arpToolPath) {}

    void make(const Change& change) {
        if (!authorization.authenticate(change.arguments)) {
            const auto others = std::exchange(waiting, {});
            refuse({change});
            refuse(others);
            return;
        }
        const auto result = authorization.runToolWithArgs(
            change.arguments, [done = change.done](const ToolEnd& end) {
                done(arpEntryForEndOfTool(end.status, end.sentence));
            });
        if (result != errAuthorizationSuccess) {
            change.done(arpEntryForResult(result));
        }
    }

    static void refuse(const std::deque<Change>& changes) {
        for (const Change& change : changes) {
            change.done({.state = ARPEntryState::rightsNotGiven});
        }
    }

    Authorization authorization;
    std::deque<Change> waiting;
    bool isMaking = false;
};

AuthorizedAddressBindings::AuthorizedAddressBindings(AuthorizationService& service,
                                                     std::function<void()> giveUpWaiting)
    : _turns(std::make_shared<Turns>(service))
    , _giveUpWaiting(std::move(giveUpWaiting)) {}

AuthorizedAddressBindings::~AuthorizedAddressBindings() {
    _turns->waiting.clear();
}

void AuthorizedAddressBindings::bind(const std::string& address, const std::string& hardwareAddress,
                                     Done done) {
    run({"-s", address, hardwareAddress}, std::move(done));
}

void AuthorizedAddressBindings::release(const std::string& address,
                                        const std::string& hardwareAddress, Done done) {
    run({"-d", address, hardwareAddress}, std::move(done));
}

// Nothing of this object is used behind a change, which may be its end.
void AuthorizedAddressBindings::run(std::vector<std::string> arguments, Done done) {
    const auto turns = _turns;
    turns->waiting.push_back({std::move(arguments), std::move(done)});
    if (std::exchange(turns->isMaking, true)) {
        return;
    }
    while (!turns->waiting.empty()) {
        const Turns::Change change = std::move(turns->waiting.front());
        turns->waiting.pop_front();
        turns->make(change);
    }
    turns->isMaking = false;
}

} // namespace kx
