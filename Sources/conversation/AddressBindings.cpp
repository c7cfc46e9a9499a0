#include "conversation/AddressBindings.h"

#include "addresses/ARPToolPath.h"

#include <utility>

namespace kx {

AuthorizedAddressBindings::AuthorizedAddressBindings(AuthorizationService& service,
                                                     std::function<void()> giveUpWaiting)
    : _authorization(std::make_shared<Authorization>(service, arpToolPath))
    , _giveUpWaiting(std::move(giveUpWaiting)) {}

void AuthorizedAddressBindings::bind(const std::string& address, const std::string& hardwareAddress,
                                     Done done) {
    run({"-s", address, hardwareAddress}, done);
}

void AuthorizedAddressBindings::release(const std::string& address,
                                        const std::string& hardwareAddress, Done done) {
    run({"-d", address, hardwareAddress}, done);
}

void AuthorizedAddressBindings::run(const std::vector<std::string>& arguments, const Done& done) {
    const auto authorization = _authorization; // a wait for a person may end this object
    if (!authorization->authenticate(arguments)) {
        done({.state = ARPEntryState::rightsNotGiven});
        return;
    }
    const auto result = authorization->runToolWithArgs(arguments, [done](const ToolEnd& end) {
        done(arpEntryForEndOfTool(end.status, end.sentence));
    });
    if (result != errAuthorizationSuccess) {
        done(arpEntryForResult(result));
    }
}

} // namespace kx
