// A host resolver whose answers the test writes.
//
// A request waits until the test calls reportAnswers(), which plays the turn of the run loop in
// which answers arrive.

#pragma once

#include "support/HostResolver.h"
#include "support/Require.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kx {

class ScriptedHostResolver final : public HostResolver {
public:
    std::unique_ptr<Request> requestForHostName(const std::string& hostName) override {
        if (_makesNoRequests) {
            return nullptr;
        }
        return std::make_unique<ScriptedRequest>(*this, hostName);
    }

    // Sets the result for a name. A name without an answer never gets a report.
    void setAnswer(const std::string& hostName, HostResolution resolution) {
        _answers[hostName] = std::move(resolution);
    }
    void setAddresses(const std::string& hostName, std::vector<Bytes> addresses) {
        setAnswer(hostName, {{}, std::move(addresses)});
    }
    void setError(const std::string& hostName, StreamError error) {
        setAnswer(hostName, {error, std::nullopt});
    }

    // After this, resolutions cannot be started, for this reason.
    void refuseToStart(StreamError error) { _startError = error; }

    // After this, no request is made at all. A real resolver never does this.
    void makeNoRequests() { _makesNoRequests = true; }

    // Reports to each pending request whose name has an answer, in the order in which they started.
    void reportAnswers() {
        const auto requests = _pending;
        for (auto* request : requests) {
            const bool isStillPending = std::count(_pending.begin(), _pending.end(), request) > 0;
            if (isStillPending && _answers.count(request->hostName()) > 0) {
                std::erase(_pending, request);
                request->report(_answers[request->hostName()]);
            }
        }
    }

    // The names whose resolution started, and those whose request was destroyed before its report.
    const std::vector<std::string>& startedNames() const { return _startedNames; }
    const std::vector<std::string>& cancelledNames() const { return _cancelledNames; }
    std::size_t pendingCount() const { return _pending.size(); }

    // The number of requests that exist, including those that are not started or have reported.
    std::size_t requestCount() const { return _requestCount; }

private:
    class ScriptedRequest final : public Request {
    public:
        ScriptedRequest(ScriptedHostResolver& resolver, std::string hostName)
            : _resolver(resolver)
            , _hostName(std::move(hostName)) {
            ++_resolver._requestCount;
        }

        ~ScriptedRequest() override {
            --_resolver._requestCount;
            if (std::erase(_resolver._pending, this) > 0) {
                _resolver._cancelledNames.push_back(_hostName);
            }
        }

        bool startResolution(Report report, StreamError& startError) override {
            require(!_isStarted, "!_isStarted", "Tests/doubles/ScriptedHostResolver");
            _isStarted = true;
            if (_resolver._startError) {
                startError = *_resolver._startError;
                return false;
            }
            _report = std::move(report);
            _resolver._pending.push_back(this);
            _resolver._startedNames.push_back(_hostName);
            return true;
        }

        const std::string& hostName() const { return _hostName; }

        // Moved to the stack, because the report may destroy this request or change the script.
        void report(HostResolution resolution) {
            const auto report = std::move(_report);
            const HostResolution given = std::move(resolution);
            report(given);
        }

    private:
        ScriptedHostResolver& _resolver;
        std::string _hostName;
        Report _report;
        bool _isStarted = false;
    };

    std::map<std::string, HostResolution> _answers;
    std::vector<ScriptedRequest*> _pending;
    std::vector<std::string> _startedNames;
    std::vector<std::string> _cancelledNames;
    std::optional<StreamError> _startError;
    std::size_t _requestCount = 0;
    bool _makesNoRequests = false;
};

} // namespace kx
