// An exchange on doubles, with a neighbour table, ARP probes and a cache of fixed entries that the
// test writes.

#pragma once

#include "ExchangeFixture.h"
#include "conversation/AddressBindings.h"
#include "conversation/AddressHolders.h"
#include "doubles/ScriptedNeighbours.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kx {

class ScriptedProbes final : public AddressProbes {
public:
    bool isPermitted = true;
    std::vector<std::uint32_t> probed;
    Heard heard;

    std::unique_ptr<AddressProbe> open(std::uint32_t /*link*/, Heard toHear) override {
        if (!isPermitted) {
            return nullptr;
        }
        heard = std::move(toHear);
        return std::make_unique<Probe>(*this);
    }

private:
    class Probe final : public AddressProbe {
    public:
        explicit Probe(ScriptedProbes& probes)
            : _probes(probes) {}
        void probe(std::uint32_t address) override { _probes.probed.push_back(address); }

    private:
        ScriptedProbes& _probes;
    };
};

// Answers at once, or when the test says so.
class ScriptedBindings final : public AddressBindings {
public:
    std::vector<std::string> calls;
    ARPEntry answerToBind{.state = ARPEntryState::started};
    ARPEntry answerToRelease{.state = ARPEntryState::started};
    std::function<void()> onBind;
    std::function<void()> onRelease;
    bool asksAPerson = false; // who answers when the test calls `answer`
    Done answer;

    void bind(const std::string& address, const std::string& hardwareAddress, Done done) override {
        calls.push_back("bind " + address + " " + hardwareAddress);
        if (onBind) {
            onBind();
        }
        if (asksAPerson) {
            answer = std::move(done);
        } else {
            done(answerToBind);
        }
    }
    void release(const std::string& address, const std::string& hardwareAddress,
                 Done done) override {
        calls.push_back("release " + address + " " + hardwareAddress);
        if (onRelease) {
            onRelease();
        }
        done(answerToRelease);
    }
    void giveUp() override {
        calls.emplace_back("give up");
        if (answer) {
            std::exchange(answer, nullptr)({.state = ARPEntryState::rightsNotGiven});
        }
    }
};

class AddressTest : public ExchangeTest {
protected:
    static constexpr auto unitHardware = "00:1A:2B:3C:4D:5E";
    static constexpr auto otherHardware = "00:1A:2B:3C:4D:77";

    ScriptedNeighbours neighbours;
    ScriptedProbes probes;
    ScriptedBindings bindings;
};

} // namespace kx
