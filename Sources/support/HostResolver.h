// Name resolution that reports on the run loop and can be cancelled.
//
// Threading: operations and the report run on the thread of the run loop that the adapter was made
// with. A report may make and start new requests. No report comes from inside startResolution().
//
// Ownership: a Request stands for one resolution. Destroying it cancels the resolution: no report
// comes after that. It may be destroyed from inside its own report; the report's callable and its
// resolution live until the call has returned. A request must not outlive its resolver.

#pragma once

#include "support/ByteRange.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kx {

// The source of an error while resolving. Domain 0 means no error.
enum StreamErrorDomain : int {
    kCFStreamErrorDomainNone = 0,
    kCFStreamErrorDomainPOSIX = 1,  // code is a value of errno(3)
    kCFStreamErrorDomainNetDB = 12, // code is an EAI_... value of getaddrinfo(3)
};

struct StreamError {
    int domain = kCFStreamErrorDomainNone;
    int code = 0;
};

// The result of a resolution. `addresses` are socket address records (see
// addresses/SocketAddressRecord.h) in the resolver's order, of any family and with port 0; absent
// when there is no answer.
struct HostResolution {
    StreamError error;
    std::optional<std::vector<Bytes>> addresses;
};

class HostResolver {
public:
    using Report = std::function<void(const HostResolution&)>;

    class Request {
    public:
        virtual ~Request() = default;

        // Starts to resolve the addresses of the request's name and reports exactly once, unless
        // cancelled. When it cannot be started, returns false, `startError` says why, and no report
        // comes; otherwise `startError` is not written. A request may be started only once, even
        // when the start failed; a second start is a broken contract (support/Require.h).
        virtual bool startResolution(Report report, StreamError& startError) = 0;

    protected:
        Request() = default;
        Request(const Request&) = delete;
        Request& operator=(const Request&) = delete;
    };

    virtual ~HostResolver() = default;

    // A request for the addresses of `hostName`, not started yet. Never null.
    virtual std::unique_ptr<Request> requestForHostName(const std::string& hostName) = 0;
};

} // namespace kx
