// The contract of an authority. It runs the same for a rule that lets the user run a tool, and for
// root.

#include "AuthorityFixture.h"
#include "contracts/AuthorizationServiceContract.h"

namespace kx {

namespace {

class HostAuthorityTrait {
public:
    AuthorizationService& service() { return *_service; }
    std::string tool() { return "/bin/sh"; }
    std::vector<std::string> arguments() { return {"-c", "exit 3"}; }
    int status() { return 3; }
    std::string absentTool() { return "/no/such/tool"; }
    bool runUntil(const std::function<bool()>& condition) { return runLoopUntil(_loop, condition); }
    void runAWhile() { runLoopFor(_loop, std::chrono::milliseconds(300)); }

private:
    PollRunLoop _loop; // tells the ends of tools, none of them during a call
    PollRunLoop _loopOfWaiting;
    WaitingPerson _waiting{_loopOfWaiting};
    std::unique_ptr<AuthorizationService> _service = makeAuthorizationService(_loop, _waiting);
};

INSTANTIATE_TYPED_TEST_SUITE_P(Host, AuthorizationServiceContract, HostAuthorityTrait);

} // namespace

} // namespace kx
