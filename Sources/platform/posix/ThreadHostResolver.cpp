#include "platform/posix/ThreadHostResolver.h"

#include "addresses/SocketAddressRecord.h"
#include "support/Require.h"

#include <fcntl.h>
#include <netdb.h>
#include <netinet/in.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <string_view>
#include <system_error>
#include <thread>
#include <utility>

namespace kx {

namespace {

constexpr std::string_view sourcePath = "Sources/platform/posix/ThreadHostResolver";

// The data that a request and its thread share. The last owner closes the pipe, so the thread can
// always wake the loop, and neither waits for the other.
struct Work {
    Work() = default;
    ~Work() {
        for (const int end : pipe) {
            if (end >= 0) {
                ::close(end);
            }
        }
    }
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;

    // Runs on the thread. Once `isDone` is set, the resolution belongs to the loop.
    void perform() {
        try {
            resolution = lookup(hostName);
        } catch (...) { // no caller above a thread could catch it
            resolution = {{kCFStreamErrorDomainPOSIX, ENOMEM}, std::nullopt};
        }
        isDone.store(true, std::memory_order_release);
        const char once = 1;
        [[maybe_unused]] const auto written = ::write(pipe[1], &once, sizeof once);
    }

    std::string hostName;
    ThreadHostResolver::Lookup lookup;
    std::array<int, 2> pipe{-1, -1}; // reading end, writing end
    HostResolution resolution;
    std::atomic<bool> isDone = false;
};

class ThreadRequest final : public HostResolver::Request {
public:
    ThreadRequest(RunLoop& runLoop, const std::string& hostName,
                  const ThreadHostResolver::Lookup& lookup)
        : _runLoop(runLoop)
        , _work(std::make_shared<Work>()) {
        _work->hostName = hostName;
        _work->lookup = lookup;
    }

    bool startResolution(HostResolver::Report report, StreamError& startError) override {
        require(!_isStarted, "!_isStarted", sourcePath);
        _isStarted = true;
        const int errorNumber = start(std::move(report));
        if (errorNumber != 0) {
            startError = {kCFStreamErrorDomainPOSIX, errorNumber};
        }
        return errorNumber == 0;
    }

private:
    // Returns 0, or the value of errno that says why it could not be started.
    int start(HostResolver::Report report) {
        if (::pipe2(_work->pipe.data(), O_CLOEXEC) != 0) {
            return errno;
        }
        _watch = _runLoop.watchForReading(
            _work->pipe[0], [this, report = std::move(report)] { reportOnce(report); });
        if (_watch == nullptr) {
            return ENOMEM;
        }
        try {
            std::thread([work = _work] { work->perform(); }).detach();
        } catch (const std::system_error& error) {
            _watch.reset();
            return error.code().value();
        }
        return 0;
    }

    // Runs in the watch's callback. The report may destroy this request, so the data that it uses
    // is on the stack; `report` lives in the callback.
    void reportOnce(const HostResolver::Report& report) {
        if (!_work->isDone.load(std::memory_order_acquire)) {
            return;
        }
        const auto work = _work;
        _watch.reset();
        report(work->resolution);
    }

    RunLoop& _runLoop;
    std::shared_ptr<Work> _work;
    RunLoop::Handle _watch;
    bool _isStarted = false;
};

void appendRecord(std::vector<Bytes>& records, const addrinfo& info) {
    if (info.ai_family == AF_INET) {
        sockaddr_in address{};
        std::memcpy(&address, info.ai_addr, sizeof address);
        records.push_back(dataForAddress(ntohl(address.sin_addr.s_addr), 0));
    } else if (info.ai_family == AF_INET6) {
        sockaddr_in6 address{};
        std::memcpy(&address, info.ai_addr, sizeof address);
        IPv6Octets octets{};
        std::copy(std::begin(address.sin6_addr.s6_addr), std::end(address.sin6_addr.s6_addr),
                  octets.begin());
        records.push_back(dataForAddress6(octets, 0));
    }
}

} // namespace

ThreadHostResolver::ThreadHostResolver(RunLoop& runLoop)
    : ThreadHostResolver(runLoop, addressesOfHostName) {}

ThreadHostResolver::ThreadHostResolver(RunLoop& runLoop, Lookup lookup)
    : _runLoop(runLoop)
    , _lookup(std::move(lookup)) {}

std::unique_ptr<HostResolver::Request>
ThreadHostResolver::requestForHostName(const std::string& hostName) {
    return std::make_unique<ThreadRequest>(_runLoop, hostName, _lookup);
}

HostResolution addressesOfHostName(const std::string& hostName) {
    addrinfo hints{};
    hints.ai_family = AF_UNSPEC;
    hints.ai_socktype = SOCK_DGRAM; // one entry for each address, not one for each kind of socket
    addrinfo* list = nullptr;
    const int result = ::getaddrinfo(hostName.c_str(), nullptr, &hints, &list);
    if (result != 0) {
        return failedResolution(result, errno);
    }
    const std::unique_ptr<addrinfo, decltype(&::freeaddrinfo)> owner(list, ::freeaddrinfo);
    std::vector<Bytes> records;
    for (const auto* info = list; info != nullptr; info = info->ai_next) {
        appendRecord(records, *info);
    }
    return {{}, std::move(records)};
}

HostResolution failedResolution(int addressInfoError, int errorNumber) {
    const StreamError error = addressInfoError == EAI_SYSTEM
                                  ? StreamError{kCFStreamErrorDomainPOSIX, errorNumber}
                                  : StreamError{kCFStreamErrorDomainNetDB, addressInfoError};
    return {error, std::nullopt};
}

} // namespace kx
