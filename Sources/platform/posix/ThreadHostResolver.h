// Host name resolution by getaddrinfo(3), on a thread of its own for each request.
//
// getaddrinfo(3) can take many seconds and cannot be interrupted. So a request starts a thread that
// knows nothing but its own piece of work, and a pipe with which it wakes the run loop; the report
// then comes from the run loop. A cancelled request forgets the work without waiting for it: the
// thread ends when getaddrinfo(3) returns, and frees the memory of its work.
//
// Errors: codes of getaddrinfo(3) have the domain kCFStreamErrorDomainNetDB. EAI_SYSTEM, and
// failures to start a request, are reported as values of errno in kCFStreamErrorDomainPOSIX. A
// lookup that throws, as a rule because memory is short, is reported as ENOMEM in the same domain.
// A second start of one request breaks the contract "!_isStarted", source path
// "Sources/platform/posix/ThreadHostResolver".

#pragma once

#include "support/HostResolver.h"
#include "support/RunLoop.h"

#include <functional>
#include <memory>
#include <string>

namespace kx {

class ThreadHostResolver final : public HostResolver {
public:
    // The function that a request's thread calls. It must be callable from any thread, and from
    // several at the same time. It can still be running when the request, the resolver and the run
    // loop are gone, so it must own everything that it uses.
    using Lookup = std::function<HostResolution(const std::string& hostName)>;

    // The run loop must outlive the resolver.
    explicit ThreadHostResolver(RunLoop& runLoop);
    ThreadHostResolver(RunLoop& runLoop, Lookup lookup);

    std::unique_ptr<Request> requestForHostName(const std::string& hostName) override;

private:
    RunLoop& _runLoop;
    Lookup _lookup;
};

// The addresses of a name, IPv4 and IPv6, in the order of getaddrinfo(3). Waits for the answer. Any
// thread.
HostResolution addressesOfHostName(const std::string& hostName);

// The resolution for a result of getaddrinfo(3) other than 0. `errorNumber` is the value of errno
// after the call.
HostResolution failedResolution(int addressInfoError, int errorNumber);

} // namespace kx
