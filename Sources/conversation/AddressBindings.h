// Fixed entries of the host's ARP cache, which bind an address to a hardware address so that a unit
// is reached at an address that it does not hold yet.
//
// Threading: main thread only. Ownership: users do not own the bindings, which must outlive them.
// `done` may be called after its user has gone, so it must not rely on it. Texts are UTF-8.

#pragma once

#include "conversation/ARPEntry.h"
#include "support/Authorization.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace kx {

class AddressBindings {
public:
    // Tells whether the entry is there, or gone: `started` means that the tool did what it was
    // told.
    using Done = std::function<void(const ARPEntry&)>;

    virtual ~AddressBindings() = default;

    // Enters an address, or takes it out again if its entry names this hardware address. A person
    // may be asked for administrator rights. `done` is called once, maybe from inside the call.
    virtual void bind(const std::string& address, const std::string& hardwareAddress,
                      Done done) = 0;
    virtual void release(const std::string& address, const std::string& hardwareAddress,
                         Done done) = 0;

    // Ends the waiting of a call that is under way: a question to a person is taken back, and the
    // call's `done` is told that there are no rights. Work that has begun goes on.
    virtual void giveUp() = 0;
};

// Changes the entries by the ARP tool, with rights from the host's authority.
//
// The authority handles the application's events while it waits, so a change may be wanted while
// another one is being made. It then waits for its turn: one person is asked one question. Whoever
// has waited while that person said no is told so without a question of their own.
class AuthorizedAddressBindings final : public AddressBindings {
public:
    // `service` must outlive the object. `giveUpWaiting` has the wait under way, which is the
    // service's, end as if the person had given up.
    AuthorizedAddressBindings(AuthorizationService& service, std::function<void()> giveUpWaiting);

    // Whoever still waits is not told any more.
    ~AuthorizedAddressBindings() override;
    AuthorizedAddressBindings(const AuthorizedAddressBindings&) = delete;
    AuthorizedAddressBindings& operator=(const AuthorizedAddressBindings&) = delete;

    void bind(const std::string& address, const std::string& hardwareAddress, Done done) override;
    void release(const std::string& address, const std::string& hardwareAddress,
                 Done done) override;
    void giveUp() override { _giveUpWaiting(); }

private:
    struct Turns;

    void run(std::vector<std::string> arguments, Done done);

    std::shared_ptr<Turns> _turns; // may have to outlive a call
    std::function<void()> _giveUpWaiting;
};

} // namespace kx
