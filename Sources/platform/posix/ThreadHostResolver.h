// Host name resolution by getaddrinfo(3), on a thread of its own for each request.
//
// getaddrinfo(3) can take many seconds and cannot be interrupted. So a request starts a thread that
// knows nothing but its own piece of work, and a pipe with which it wakes the run loop; the report
// then comes from the run loop. Cancelling forgets the work without waiting for it: the thread ends
// when getaddrinfo(3) returns, and frees what it worked on.
//
// Errors: codes of getaddrinfo(3) have the domain kCFStreamErrorDomainNetDB; EAI_SYSTEM, and what
// keeps a request from starting, are reported as values of errno in kCFStreamErrorDomainPOSIX; a
// lookup that throws, for want of memory as a rule, is reported as ENOMEM there. A second start of
// one request breaks the contract "!_isStarted", source path
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
    // What a request's thread calls. It must be callable from any thread, at the same time too. It
    // can still be running when the request, the resolver and the run loop are gone, so it must own
    // what it uses.
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

// The resolution that a result of getaddrinfo(3) other than 0 stands for. `errorNumber` is the
// value of errno after the call.
HostResolution failedResolution(int addressInfoError, int errorNumber);

} // namespace kx
