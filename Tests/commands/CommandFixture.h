// A command of kxctl from its words to its exit status, on doubles: units that the test plays, a
// clock that it moves, and a console that keeps what was said.

#pragma once

#include "commands/CommandRun.h"
#include "core/conversation/AddressFixture.h"
#include "doubles/FixedWallClock.h"
#include "doubles/ScriptedDiagnosticSockets.h"
#include "doubles/ScriptedHostDiagnostics.h"
#include "doubles/ScriptedRunLock.h"

#include <csignal>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kx {

class RecordedConsole final : public Console {
public:
    std::string output;
    std::string notes;
    std::vector<std::string> answers; // what the person types, the next one first
    std::optional<Error> error;
    bool isTerminal = false;
    bool isLent = false; // another program asks the person at the terminal
    bool hasInputTerminal = false;
    std::chrono::milliseconds timeToAnswer{0};

    void writeOutput(std::string_view text) override { output += text; }
    void writeNote(std::string_view text) override { notes += text; }
    const std::optional<Error>& outputError() const override { return error; }
    bool isOutputTerminal() const override { return isTerminal; }
    bool isNoteTerminal() const override { return isTerminal; }
    bool isInputTerminal() const override { return hasInputTerminal; }
    bool isPlain() const override { return false; }
    bool canRewriteNotes() const override { return isTerminal && !isLent; }
    bool isReaderGone() override { return error.has_value(); }
    RunLoop::Handle readLine(RunLoop& loop,
                             std::function<void(std::optional<std::string>)> done) override {
        if (answers.empty()) {
            return loop.callOnceAfter(timeToAnswer, [done] { done(std::nullopt); });
        }
        return loop.callOnceAfter(timeToAnswer, [this, done] {
            auto answer = std::move(answers.front());
            answers.erase(answers.begin());
            done(std::move(answer));
        });
    }
};

class ScriptedHostInterfaces final : public HostInterfaces {
public:
    std::vector<HostInterface> interfaces;
    std::vector<HostInterface> list() override { return interfaces; }
};

// A unit on a link. It answers what reaches it after a while, from its own address.
struct PlayedUnit {
    SampleUnit unit = {};
    std::uint32_t link = 3;
    std::chrono::milliseconds late{3};
    std::optional<std::uint32_t> sender = {};
    bool hearsBroadcasts = true;
    // What it does when it gets a command; it acknowledges it in any case.
    std::function<void(SampleUnit&, std::string_view command)> obey = {};

    std::uint32_t address() const { return addressToldIn(unit.reply()); }
};

class CommandTest : public testing::Test {
protected:
    using Words = std::vector<std::string>;
    using Operation = ScriptedSystemCalls::Operation;

    static constexpr auto serial = "010203040506";       // of SampleUnit
    static constexpr auto secondSerial = "010203040507"; // of secondSampleUnit()
    static constexpr std::uint32_t link = 3;
    static constexpr std::uint32_t secondLink = 4;

    // kx0 has 192.168.1.1/24.
    CommandTest() {
        addInterface("kx0", link, 0xC0A80101U);
        systemCalls.setObserver([this](const ScriptedSystemCalls::Call& call) {
            if (call.operation == Operation::sendTo) {
                deliver(call);
            }
        });
    }

    // With a network of 24 bits.
    void addInterface(const std::string& name, std::uint32_t index, std::uint32_t address) {
        HostInterface interface;
        interface.name = name;
        interface.title = "Ethernet (" + name + ")";
        interface.userName = "Ethernet";
        interface.link = index;
        interface.networks = {{.address = address, .mask = 0xFFFFFF00U}};
        interface.canBroadcast = true;
        interface.isRunning = true;
        interface.canAsk = true;
        interfaces.interfaces.push_back(interface);
        systemCalls.addLink(name, index);
    }

    PlayedUnit& play(PlayedUnit unit) {
        units.push_back(std::make_unique<PlayedUnit>(std::move(unit)));
        return *units.back();
    }

    // Runs a command to its end, and returns the exit status.
    int run(const Words& words) {
        auto read = commandLineOf(words);
        if (const auto* const failure = std::get_if<Failure>(&read)) {
            ADD_FAILURE() << failure->message;
            return -1;
        }
        line = std::get<CommandLine>(std::move(read));
        replies.clear(); // nothing of the run before comes late
        console.output.clear();
        console.notes.clear();
        command = std::make_unique<CommandRun>(line, services());
        return command->run();
    }

    // The signal comes so long after now.
    void interruptAfter(std::chrono::milliseconds time) {
        at(time, [this] {
            signal = SIGINT;
            command->takeSignal();
        });
    }

    void at(std::chrono::milliseconds time, std::function<void()> action) {
        later.push_back(runLoop.callOnceAfter(time, std::move(action)));
    }

    Json document() const { return Json::parse(console.output); }
    std::string errorCode() const { return document()["error"]["code"].get<std::string>(); }

    // What was sent without the requests for parameters, as "192.168.1.10:10000 ^^IdZ".
    Words commandsSent() const {
        Words lines = sentThrough(systemCalls);
        std::erase_if(lines, [](const std::string& each) { return each.ends_with("^^IdX"); });
        return lines;
    }

    RecordedSystemLog systemLog;
    ManualRunLoop runLoop;
    ScriptedHostResolver hostResolver;
    ScriptedSystemCalls systemCalls;
    ScriptedReceiveBufferControl receiveBuffers;
    FixedWallClock wallClock{2030, 1, 31, 12, 0, 0};
    RecordedConsole console;
    ScriptedHostInterfaces interfaces;
    ScriptedRunLock runLock;
    ScriptedNeighbours neighbours;
    ScriptedBindings bindings;
    ScriptedHostDiagnostics diagnostics;
    ScriptedDiagnosticSockets diagnosticSockets;
    std::vector<std::unique_ptr<PlayedUnit>> units;
    CommandLine line;
    std::unique_ptr<CommandRun> command;
    std::optional<int> signal; // waits to be taken
    std::vector<RunLoop::Handle> later;
    std::vector<RunLoop::Handle> replies;

private:
    CommandServices services() {
        return {.session = {.runLoop = runLoop,
                            .hostResolver = hostResolver,
                            .systemCalls = systemCalls,
                            .receiveBuffers = &receiveBuffers},
                .now = [this] { return runLoop.now(); },
                .utc = [this] { return std::chrono::microseconds(runLoop.now()); },
                .wallClock = wallClock,
                .console = console,
                .interfaces = interfaces,
                .runLock = runLock,
                .neighbours = neighbours,
                .bindings = bindings,
                .diagnostics = diagnostics,
                .diagnosticSockets = diagnosticSockets,
                .takeSignal = [this] { return std::exchange(signal, std::nullopt); }};
    }

    void deliver(const ScriptedSystemCalls::Call& call) {
        std::uint32_t address = 0;
        std::uint16_t port = 0;
        IPv6Octets unused{};
        addressForData(call.address, address, unused, &port);
        const std::string text(call.data.begin(), call.data.end());
        for (const auto& unit : units) {
            const bool isForAll = (address & 0xFFU) == 0xFFU;
            if (unit->link == call.link &&
                (isForAll ? unit->hearsBroadcasts : address == unit->address())) {
                replies.push_back(runLoop.callOnceAfter(
                    unit->late, [this, &each = *unit, text] { answer(each, text); }));
            }
        }
    }

    void answer(PlayedUnit& unit, const std::string& text) {
        Bytes reply = unit.unit.acknowledgement();
        if (text == "^^IdX") {
            reply = unit.unit.reply();
        } else if (unit.obey) {
            unit.obey(unit.unit, text);
        }
        systemCalls.queueDatagram(reply, dataForAddress(unit.sender.value_or(unit.address()), 3520),
                                  unit.link);
        runLoop.makeReadable(systemCalls.lastDescriptor());
    }
};

} // namespace kx
