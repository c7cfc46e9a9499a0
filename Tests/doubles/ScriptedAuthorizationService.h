// An authority whose answers the test writes. It runs no tool and records its requests.

#pragma once

#include "support/AuthorizationService.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace kx {

class ScriptedAuthorizationService final : public AuthorizationService {
public:
    struct Request {
        AuthorizationItem right;
        std::uint32_t flags = 0;
    };

    struct Run {
        std::string toolPath;
        std::vector<std::string> arguments;
    };

    std::unique_ptr<AuthorizationReference> create() override {
        if (_isAbsent) {
            return nullptr;
        }
        ++_references;
        return std::make_unique<Reference>(*this);
    }

    std::optional<std::string>
    objectionTo(const std::string& toolPath,
                const std::vector<std::string>& arguments) const override {
        return _object ? _object({toolPath, arguments}) : std::nullopt;
    }

    // Sets what speaks against a run; nothing at first.
    void objectWith(std::function<std::optional<std::string>(const Run&)> object) {
        _object = std::move(object);
    }

    // After this, there is no authority.
    void beAbsent() { _isAbsent = true; }

    // Sets the answer to the next dialogs; success at first.
    void answerDialogsWith(std::int32_t status) { _dialogAnswer = status; }

    // Sets an action that runs while a person is asked.
    void setMeanwhile(std::function<void()> meanwhile) { _meanwhile = std::move(meanwhile); }

    // Sets the result of starting a tool; success at first.
    void startToolsWith(std::int32_t status) { _startStatus = status; }

    // Ends the rights that were given: a person is asked anew.
    void revokeRights() { ++_revocations; }

    // Ends the tool that has run longest, after it has said this.
    void endOldestTool(int status, const std::string& sentence = {}) {
        if (_running.empty()) {
            throw std::logic_error("no tool runs");
        }
        const auto ended = std::move(_running.front().second);
        _running.erase(_running.begin()); // first, because it may destroy references
        if (ended) {
            ended({status, sentence});
        }
    }

    // Ends the running tools, each with this status, as a turn of the run loop would report it.
    void endTools(int status, const std::string& sentence = {}) {
        for (auto left = _running.size(); left > 0 && !_running.empty(); --left) {
            endOldestTool(status, sentence);
        }
    }

    const std::vector<Request>& requests() const { return _requests; }
    const std::vector<Run>& runs() const { return _runs; }
    int dialogs() const { return _dialogs; }                 // how often a person was asked
    int referencesMade() const { return _references; }       // number of references ever made
    int referencesAlive() const { return _aliveReferences; } // number of references now

private:
    class Reference final : public AuthorizationReference {
    public:
        explicit Reference(ScriptedAuthorizationService& service)
            : _service(service) {
            ++_service._aliveReferences;
        }
        ~Reference() override {
            --_service._aliveReferences;
            std::erase_if(_service._running, [this](const auto& run) { return run.first == this; });
        }

        std::int32_t copyRights(const AuthorizationItem& right, std::uint32_t flags) override {
            _service._requests.push_back({right, flags});
            if (std::exchange(_revocations, _service._revocations) != _service._revocations) {
                _held.clear();
            }
            if (_held.contains(right.value)) {
                return errAuthorizationSuccess;
            }
            if ((flags & kAuthorizationFlagInteractionAllowed) == 0) {
                return errAuthorizationInteractionNotAllowed;
            }
            ++_service._dialogs;
            if (const auto meanwhile = _service._meanwhile) {
                meanwhile(); // it may set another one
            }
            const bool isKept = (flags & kAuthorizationFlagExtendRights) != 0;
            if (isKept && _service._dialogAnswer == errAuthorizationSuccess) {
                _held.insert(right.value);
            }
            return _service._dialogAnswer;
        }

        std::int32_t executeWithPrivileges(const std::string& toolPath,
                                           const std::vector<std::string>& arguments,
                                           ToolEndAction ended) override {
            _service._runs.push_back({toolPath, arguments});
            if (_service._startStatus == errAuthorizationSuccess) {
                _service._running.emplace_back(this, std::move(ended));
            }
            return _service._startStatus;
        }

    private:
        ScriptedAuthorizationService& _service;
        std::set<std::string> _held; // values of the held rights
        int _revocations = _service._revocations;
    };

    bool _isAbsent = false;
    std::int32_t _dialogAnswer = errAuthorizationSuccess;
    std::int32_t _startStatus = errAuthorizationSuccess;
    std::function<void()> _meanwhile;
    std::function<std::optional<std::string>(const Run&)> _object;
    std::vector<Request> _requests;
    std::vector<Run> _runs;
    std::vector<std::pair<Reference*, AuthorizationReference::ToolEndAction>> _running;
    int _revocations = 0;
    int _dialogs = 0;
    int _references = 0;
    int _aliveReferences = 0;
};

} // namespace kx
