// The common part of the tests of the authorities: an authority on the real system, and its effects
// there.
//
// They run in in_polkit.sh, inside the lab. The options of each test's run say which person sits at
// the dialogs, and which rules the host has.

#pragma once

#include "platform/PollLoopDriver.h"
#include "platform/linux/LinuxAuthorization.h"
#include "support/Authorization.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

namespace kx {

// Runs the loop for a person at the application who gives up when told, or after a while.
class WaitingPerson final : public Waiting {
public:
    explicit WaitingPerson(PollRunLoop& loop)
        : _loop(loop) {}

    void giveUpAfter(std::chrono::milliseconds patience) { _patience = patience; }
    void giveUp() { _hasGivenUp = true; }

    bool until(const std::function<bool()>& isDone, std::string_view /*sentence*/) override {
        const auto end = std::chrono::steady_clock::now() + _patience;
        while (!isDone()) {
            if (_hasGivenUp || std::chrono::steady_clock::now() >= end) {
                return false;
            }
            _loop.runOnce(std::chrono::milliseconds(10));
        }
        return true;
    }

private:
    PollRunLoop& _loop;
    std::chrono::milliseconds _patience = RunLoop::longestDelay;
    bool _hasGivenUp = false;
};

class AuthorityFixture : public testing::Test {
protected:
    static constexpr auto arpTool = "/usr/sbin/arp";
    static constexpr auto arpAction = "org.kxconfig.KXConfig.set-arp-entry";
    static constexpr auto anyToolAction = "org.freedesktop.policykit.exec";
    static constexpr auto shell = "/bin/sh";
    static constexpr std::uint32_t asking = kAuthorizationFlagInteractionAllowed;
    static constexpr std::uint32_t keeping = kAuthorizationFlagExtendRights;

    // An address of the lab's network that no unit has.
    static constexpr auto newAddress = "192.0.2.77";
    static constexpr auto unitAddress = "02:00:00:00:00:77";

    static AuthorizationItem rightOf(const std::string& tool) {
        return {.name = std::string(kAuthorizationRightExecute), .value = tool, .flags = 0};
    }

    // The right to enter the address.
    static AuthorizationItem rightToEnter() {
        AuthorizationItem right = rightOf(arpTool);
        right.arguments = enteringArguments();
        return right;
    }

    static std::vector<std::string> enteringArguments() { return {"-s", newAddress, unitAddress}; }

    // The actions of the questions that the person was asked so far, and the texts of the dialogs.
    static std::vector<std::string> dialogs() { return linesOf("KX_DIALOGS"); }
    static std::vector<std::string> messages() { return linesOf("KX_MESSAGES"); }

    static std::vector<std::string> linesOf(const char* variable) {
        std::ifstream file(std::getenv(variable));
        std::vector<std::string> lines;
        for (std::string line; std::getline(file, line);) {
            lines.push_back(line);
        }
        return lines;
    }

    // The hardware address that the host's neighbour table has for the new address.
    static std::string neighbour() {
        std::ifstream file("/proc/net/arp");
        std::string line;
        while (std::getline(file, line)) {
            std::istringstream fields(line);
            std::string address;
            std::string type;
            std::string flags;
            std::string hardwareAddress;
            fields >> address >> type >> flags >> hardwareAddress;
            if (address == newAddress) {
                return hardwareAddress;
            }
        }
        return {};
    }

    // The same, after waiting until there is one: on a busy host a tool may still be at work when
    // its start is reported.
    std::string neighbourInTime() {
        runLoopUntil(loop, [] { return !neighbour().empty(); });
        return neighbour();
    }

    static bool hasChildren() { return ::waitpid(-1, nullptr, WNOHANG) != -1 || errno != ECHILD; }

    static std::ptrdiff_t openDescriptors() {
        const std::filesystem::directory_iterator descriptors("/proc/self/fd");
        return std::distance(begin(descriptors), end(descriptors));
    }

    // Starts a tool and records its end.
    std::int32_t run(const std::string& tool, const std::vector<std::string>& arguments) {
        return reference->executeWithPrivileges(tool, arguments, [this](const ToolEnd& end) {
            ends.push_back(end.status);
            sentences.push_back(end.sentence);
        });
    }
    std::int32_t runArp() { return run(arpTool, enteringArguments()); }
    std::int32_t runShell(const std::string& script) { return run(shell, {"-c", script}); }

    bool runUntilEnd() {
        return runLoopUntil(loop, [this] { return !ends.empty(); });
    }

    PollRunLoop loop; // tells the ends of tools, none of them during a call
    PollRunLoop loopOfWaiting;
    WaitingPerson waiting{loopOfWaiting};
    std::unique_ptr<AuthorizationService> service = makeAuthorizationService(loop, waiting);
    std::unique_ptr<AuthorizationReference> reference = service->create();
    std::vector<int> ends;
    std::vector<std::string> sentences;
};

// A tool that runs until the test lets it end.
class HeldTool {
public:
    HeldTool() { std::system(("mkfifo " + _gate).c_str()); }
    ~HeldTool() { release(); }
    HeldTool(const HeldTool&) = delete;
    HeldTool& operator=(const HeldTool&) = delete;

    std::string script() const { return "read line <" + _gate + "; exit 5"; }
    void release() {
        if (!_isReleased) {
            std::ofstream(_gate) << "go\n";
        }
        _isReleased = true;
    }

private:
    std::string _gate = std::string(std::getenv("HOME")) + "/gate";
    bool _isReleased = false;
};

} // namespace kx
