// An exchange with many units at its other end, and a journal that the test reads.

#pragma once

#include "ExchangeFixture.h"
#include "PlayedUnits.h"
#include "addresses/IPv4Address.h"
#include "conversation/AddressMove.h"
#include "conversation/PlanRun.h"
#include "conversation/RunHistory.h"
#include "conversation/UnitPlan.h"
#include "units/IdentityText.h"

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace kx {

class RunTest : public ExchangeTest {
protected:
    using Edits = std::vector<std::pair<UnitParameter, std::string>>;
    using States = std::vector<RowState>;

    static constexpr std::uint32_t broadcastAddress = 0xC0A8FFFFU; // 192.168.255.255

    RunTest() {
        systemCalls.setObserver([this](const ScriptedSystemCalls::Call& call) {
            if (call.operation == Operation::sendTo) {
                deliver(call);
            }
        });
    }

    // --- Units ---

    static Bytes sixBytes(std::uint8_t first, std::uint32_t number) {
        return {first,
                0x4B,
                0x58,
                0,
                static_cast<std::uint8_t>(number >> 8U),
                static_cast<std::uint8_t>(number)};
    }
    static Bytes octetsOf(std::uint32_t number) { // 192.168.2.0 and the number
        const std::uint32_t address = 0xC0A80200U + number;
        return {static_cast<std::uint8_t>(address >> 24U),
                static_cast<std::uint8_t>(address >> 16U), static_cast<std::uint8_t>(address >> 8U),
                static_cast<std::uint8_t>(address)};
    }
    static std::string serial(std::uint32_t number) {
        return hexStringForData(sixBytes(0x4B, number), " ");
    }
    static std::string hardware(std::uint32_t number) {
        return hexStringForData(sixBytes(0x02, number), ":");
    }
    static std::string address(std::uint32_t number) { return stringForIP(0xC0A80200U + number); }

    void addUnits(std::uint32_t first, std::uint32_t last) {
        for (std::uint32_t number = first; number <= last; ++number) {
            PlayedUnit unit;
            unit.settings.serial = sixBytes(0x4B, number);
            unit.settings.internalMAC = sixBytes(0x02, number);
            unit.settings.internalIP = octetsOf(number);
            units.push_back(unit);
            _byAddress[units.back().address()] = units.size() - 1;
        }
    }

    void removeUnits() {
        units.clear();
        _byAddress.clear();
    }

    PlayedUnit& unit(std::uint32_t number) { return units.at(number - 1); }

    // --- Tables ---

    static WantedRow row(std::size_t line, std::uint32_t number, const Edits& edits) {
        WantedRow row{.line = line, .serialNumber = serial(number), .edits = {}};
        for (const auto& [parameter, value] : edits) {
            row.edits.push_back(std::get<ExactEdit>(exactEdit(parameter, value)));
        }
        return row;
    }
    static Edits move(std::uint32_t number) {
        return {{UnitParameter::internalIPAddress, address(number)}};
    }
    static Edits rename(std::uint32_t number) {
        return {{UnitParameter::serialNumber, serial(number)}};
    }
    static Edits name(const std::string& text) { return {{UnitParameter::unitID, text}}; }

    // A table that gives every unit a name.
    static std::vector<WantedRow> names(std::uint32_t count) {
        std::vector<WantedRow> rows;
        for (std::uint32_t number = 1; number <= count; ++number) {
            rows.push_back(row(number + 1, number, name("N" + std::to_string(number))));
        }
        return rows;
    }

    // The units that answer, as they are now.
    HeardUnits hear() {
        for (; _answers > 0; --_answers) {
            runLoop.makeReadable(systemCalls.lastDescriptor());
        }
        class Collector : public UnitExchange::Listener {
        public:
            using Listener::Listener;
            void unitDidTell(const HeardUnit& told) override { heard.add(told); }
            HeardUnits heard;
        } collector(exchange);
        for (const PlayedUnit& each : units) {
            if (!each.isSilent) {
                receive(each.reply(), each.address());
            }
        }
        return collector.heard;
    }

    // This host's only one, with the network 192.168.0.0/16.
    static HostInterface ownInterface() {
        HostInterface own;
        own.name = "kx0";
        own.title = "Ethernet (kx0)";
        own.link = link;
        own.networks = {{.address = ownAddress, .mask = 0xFFFF0000U}};
        own.canBroadcast = true;
        own.isRunning = true;
        own.canAsk = true;
        return own;
    }

    UnitPlan planOf(const std::vector<WantedRow>& rows) {
        return planOfRows(rows, hear(),
                          {.interfaces = {ownInterface()}, .asked = {ownInterface()}});
    }

    // --- Runs ---

    void begin(UnitPlan plan, PlanRun::Options options = {}) {
        hasEnded = false;
        run = std::make_unique<PlanRun>(exchange, services, journal, std::move(plan), options);
        run->begin([this] { hasEnded = true; });
    }

    // Delivers answers, and lets time pass when there are none.
    void turn() {
        if (_answers > 0) {
            --_answers;
            runLoop.makeReadable(systemCalls.lastDescriptor());
        } else {
            runLoop.advanceBy(std::chrono::milliseconds(20));
        }
    }
    void finish() {
        while (!hasEnded) {
            turn();
        }
    }

    const UnitPlan& apply(const std::vector<WantedRow>& rows, PlanRun::Options options = {}) {
        begin(planOf(rows), options);
        finish();
        return run->plan();
    }

    States states() const {
        States all;
        for (const PlannedRow& each : run->plan().rows) {
            all.push_back(each.state);
        }
        return all;
    }
    const RowReason& reason(std::size_t place) const { return run->plan().rows.at(place).reason; }

    int commands() const {
        int count = 0;
        for (const PlayedUnit& each : units) {
            count += each.commands;
        }
        return count;
    }

    std::size_t unitsWithCommands() const {
        return static_cast<std::size_t>(
            std::ranges::count_if(units, [](const PlayedUnit& each) { return each.commands > 0; }));
    }

    std::vector<PlayedUnit> units;
    PlayedBindings bindings;
    RecordedJournal journal{runLoop};
    std::unique_ptr<PlanRun> run;
    bool hasEnded = false;

    // Percentage of the datagrams that get lost, each way.
    unsigned lostPercent = 0;

    // Entries of the neighbour table, and the addresses that were taken out of it.
    std::size_t neighboursInUse = 0;
    std::vector<std::string> forgotten;

    // Nothing is delivered to units while this is set.
    bool isHeldBack = false;

    // Sentences about commands that should not have been sent; empty in a good run.
    std::set<std::string> violations;

    // The command is on the disk.
    virtual bool isJournalled(const std::string& command) {
        return journal.commands.contains(command);
    }

    // What nobody has received is gone.
    void forgetAnswers() {
        const int reader = systemCalls.socket();
        std::array<std::uint8_t, 2048> buffer{};
        for (DatagramOrigin origin; systemCalls.receiveFrom(reader, buffer, origin) >= 0;) {
        }
        systemCalls.close(reader);
        _answers = 0;
    }

private:
    // What the host's neighbour table says at once.
    class Neighbours final : public NeighbourTable {
    public:
        explicit Neighbours(RunTest& test)
            : _test(test) {}
        std::optional<Neighbour> entry(std::uint32_t asked, std::uint32_t /*link*/) override {
            const auto bound = _test.bindings.entries.find(asked);
            if (bound != _test.bindings.entries.end()) {
                return Neighbour{NeighbourState::permanent, bound->second};
            }
            const auto foreign = _test.foreignHosts.find(asked);
            if (foreign != _test.foreignHosts.end()) {
                return Neighbour{NeighbourState::reachable, foreign->second};
            }
            const PlayedUnit* const holder = _test.holderOf(asked);
            return holder != nullptr && holder->answersARP && !holder->isSilent
                       ? Neighbour{NeighbourState::reachable, holder->hardwareAddress()}
                       : Neighbour{NeighbourState::failed, {}};
        }
        std::vector<std::uint32_t> knownAddresses(std::uint32_t /*link*/) override { return {}; }
        std::size_t entriesInUse() override { return _test.neighboursInUse; }
        void forget(std::uint32_t asked, std::uint32_t /*link*/) override {
            _test.forgotten.push_back(stringForIP(asked));
        }

    private:
        RunTest& _test;
    };

    PlayedUnit* holderOf(std::uint32_t asked) {
        const auto found = _byAddress.find(asked);
        return found != _byAddress.end() ? &units[found->second] : nullptr;
    }

    // The unit that a datagram for the address reaches.
    PlayedUnit* unitAt(std::uint32_t asked) {
        const auto bound = bindings.entries.find(asked);
        if (bound == bindings.entries.end()) {
            return holderOf(asked);
        }
        const auto found = std::ranges::find_if(units, [&bound](const PlayedUnit& each) {
            return each.hardwareAddress() == bound->second;
        });
        return found != units.end() ? &*found : nullptr;
    }

    bool isLost() { return lostPercent > 0 && _random() % 100 < lostPercent; }

    void deliver(const ScriptedSystemCalls::Call& call) {
        std::uint32_t to = 0;
        IPv6Octets unused{};
        std::uint16_t port = 0;
        addressForData(call.address, to, unused, &port);
        const std::string command(call.data.begin(), call.data.end());
        if (command != "^^IdX") {
            expectJournalled(command);
        } else if (to == broadcastAddress) {
            answerAsEverybody();
            return;
        }
        PlayedUnit* const reached = unitAt(to);
        if (reached == nullptr || isHeldBack || isLost() || isDeaf(*reached, command)) {
            return;
        }
        if (command == "^^IdX") {
            answer(*reached, reached->reply());
            return;
        }
        expectFree(*reached, command);
        _byAddress.erase(reached->address());
        reached->take(command);
        _byAddress[reached->address()] = static_cast<std::size_t>(reached - units.data());
        answer(*reached, reached->settings.acknowledgement());
    }

    void answerAsEverybody() {
        for (const PlayedUnit& each : units) {
            if (!each.isSilent && !isHeldBack && !isLost()) {
                answer(each, each.settings.reply());
            }
        }
    }

    // A unit that falls silent does so at a command.
    static bool isDeaf(PlayedUnit& reached, const std::string& command) {
        if (command != "^^IdX" && reached.commandsUntilSilence &&
            reached.commands >= *reached.commandsUntilSilence) {
            reached.isSilent = true;
        }
        return reached.isSilent || reached.lost.find(command[4]) != std::string::npos;
    }

    void answer(const PlayedUnit& from, const Bytes& reply) {
        if (!isLost()) {
            systemCalls.queueDatagram(reply, dataForAddress(from.address(), 3520), link);
            ++_answers;
        }
    }

    void expectJournalled(const std::string& command) {
        if (!isJournalled(command)) {
            violations.insert("not in the journal: " + command);
        }
    }

    void expectFree(const PlayedUnit& reached, const std::string& command) {
        if (command[4] != 'I' && command[4] != 'S') {
            return;
        }
        PlayedUnit moved = reached;
        moved.ignored.clear();
        moved.take(command);
        const PlayedUnit* const holder = holderOf(moved.address());
        if (command[4] == 'I' && holder != nullptr && holder != &reached) {
            violations.insert("held: " + command);
        }
        if (command[4] == 'S' && std::ranges::any_of(units, [&](const PlayedUnit& each) {
                return &each != &reached && each.serialNumber() == moved.serialNumber();
            })) {
            violations.insert("serial number of another: " + command);
        }
    }

    std::map<std::uint32_t, std::size_t> _byAddress;
    std::size_t _answers = 0; // that wait to be received
    std::mt19937 _random{20'261'122};
    Neighbours _neighbours{*this};

protected:
    // Hosts that are no units, by address.
    std::map<std::uint32_t, std::string> foreignHosts;

    AddressMove::Services services{.holders = {.neighbours = _neighbours}, .bindings = bindings};
};

} // namespace kx
