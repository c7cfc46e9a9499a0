#include "conversation/AddressBindings.h"

#include <utility>

namespace kx {

namespace {

constexpr auto arpTool = "/usr/sbin/arp";

} // namespace

AuthorizedAddressBindings::AuthorizedAddressBindings(AuthorizationService& service)
    : _authorization(std::make_shared<Authorization>(service, arpTool)) {}

void AuthorizedAddressBindings::bind(const std::string& address,
                                     const std::string& hardwareAddress, Done done) {
    run({"-s", address, hardwareAddress}, std::move(done));
}

void AuthorizedAddressBindings::release(const std::string& address,
                                        const std::string& hardwareAddress, Done done) {
    run({"-d", address, hardwareAddress}, std::move(done));
}

void AuthorizedAddressBindings::run(const std::vector<std::string>& arguments, Done done) {
    if (!_authorization->authenticate()) {
        done({.state = ARPEntryState::rightsNotGiven});
        return;
    }
    const auto result = _authorization->runToolWithArgs(
        arguments, [done](int status) { done(arpEntryForEndOfTool(status)); });
    if (result != errAuthorizationSuccess) {
        done(arpEntryForResult(result));
    }
}

} // namespace kx
