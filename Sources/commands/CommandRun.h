// One run of a command: what it was told, what it may use, and what it has to say.
//
// The functions of Commands.h work through an object of this class. Data goes to standard output,
// sentences go to standard error, and with --json the document goes to standard output at the end.
//
// Threading: the main thread only. Ownership: the services must outlive the run.

#pragma once

#include "commands/CommandLine.h"
#include "commands/Document.h"
#include "commands/ExitStatus.h"
#include "commands/OutputFile.h"
#include "conversation/AddressBindings.h"
#include "conversation/AddressHolders.h"
#include "conversation/DiagnosticSockets.h"
#include "conversation/HostDiagnostics.h"
#include "conversation/HostInterface.h"
#include "conversation/Operation.h"
#include "conversation/RunLock.h"
#include "conversation/UnitExchange.h"
#include "files/CapturingSystemCalls.h"
#include "support/Console.h"
#include "support/WallClock.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kx {

struct CommandServices {
    UnitSession::Services session;
    MonotonicClock now;
    std::function<std::chrono::microseconds()> utc; // since the beginning of 1970
    const WallClock& wallClock;
    Console& console;
    HostInterfaces& interfaces;
    RunLock& runLock;
    NeighbourTable& neighbours;
    AddressProbes* probes = nullptr; // may be null
    AddressBindings& bindings;
    HostDiagnostics& diagnostics;
    DiagnosticSockets& diagnosticSockets;
    std::function<std::optional<int>()> takeSignal; // one that asks to end; absent when none waits
};

class CommandRun {
public:
    CommandRun(const CommandLine& line, const CommandServices& services);
    ~CommandRun();
    CommandRun(const CommandRun&) = delete;
    CommandRun& operator=(const CommandRun&) = delete;

    // Runs the command of the line to its end, and returns the exit status.
    int run();

    // Call it when a signal has come. The operation under way is told. Has no effect when none
    // waits.
    void takeSignal();

    // --- For the functions of Commands.h ---

    const CommandLine& line() const { return _line; }
    const CommandServices& services() const { return _services; }
    Document& document() { return _document; }
    bool wantsDocument() const { return _line.has("--json"); }
    bool isInterrupted() const { return _signal != 0; }

    // Why the command cannot go on; absent when it can.
    using Refusal = std::optional<Failure>;

    // Chooses the interfaces on which units are asked. `interfaces()` has all of them then.
    Refusal chooseInterfaces();

    // The same for a question about the interfaces themselves: one that cannot ask may be chosen.
    // Without a name, and where none can ask, all are chosen that could broadcast. `chosen()` may
    // be empty then.
    Refusal chooseInterfacesToLookAt();
    const std::vector<HostInterface>& interfaces() const { return _interfaces; }
    const std::vector<HostInterface>& chosen() const { return _chosen; }

    // Begins to listen, and to capture when that is wanted. Interfaces must be chosen. `wrapped`
    // may put a layer over the system calls of the listener; it must outlive the listener.
    using SystemCallLayer = std::function<DatagramSystemCalls&(DatagramSystemCalls&)>;
    Refusal openExchange(const SystemCallLayer& wrapped = {});

    // Ends what openExchange() began, for a layer that ends before the run.
    void closeExchange() { _exchange.reset(); }

    // The system calls below the listener, which write the capture when one is wanted.
    DatagramSystemCalls& systemCalls();
    bool isListening() const { return _exchange != nullptr && _exchange->port() != 0; }
    UnitExchange& exchange() { return *_exchange; }

    // The broadcast addresses of the chosen interfaces.
    std::vector<UnitTarget> everybody() const;
    UnitTarget everybodyOf(std::uint32_t link) const;

    // Runs the loop until the operation has ended. An interrupted run begins nothing.
    // Meanwhile a terminal shows how far it has come: what `count` says, the time, and what `left`
    // says of the time that is left. Without `count` it shows nothing.
    void wait(Operation& operation, std::function<std::string()> count = {},
              std::function<std::string()> left = {});

    // Finds the units of these names. `found` gets the units that answer and that no other unit can
    // be taken for, each once; the refusal tells all the others, with the code of the first.
    Refusal findUnits(const std::vector<UnitName>& names, std::vector<HeardUnit>& found);

    // The same for one unit that will get a command. Warns when its answer came from another
    // address than the one that it tells.
    Refusal findUnit(const UnitName& name, HeardUnit& unit);

    // Why a unit cannot get this serial number: another one has it. Asks everybody.
    Refusal refusalOfSerialNumber(const std::string& serial);

    // The steps of a command for one unit: interfaces, listening, and the unit itself.
    Refusal reachUnit(const std::string& typedName, HeardUnit& unit);

    // Reads the names of units, or says which word is none.
    Refusal readNames(const std::vector<std::string>& words, std::vector<UnitName>& names) const;

    // Why a file cannot be written, for a refusal before anything is sent.
    static Refusal refusalOfFile(const OutputFile& file, const std::optional<Error>& error);

    // The document becomes the contents of this file too, at the end.
    void saveDocument(std::unique_ptr<OutputFile> file) { _savedDocument = std::move(file); }

    // Writes data to standard output, unless the document is wanted.
    void print(std::string_view text);
    bool isBold() const;

    // Writes one sentence to standard error, unless the person wants quiet.
    void say(const std::string& sentence);
    void warn(std::string_view code, const std::string& sentence);

    // Warns that a datagram was not sent to one of several places; nothing without a failure.
    void warnOfSend(const std::optional<SendFailure>& failure);

    // Asks everybody on the chosen interfaces, and gives the units that answer.
    Refusal findEveryone(std::vector<HeardUnit>& found);

    // Warns when a unit's answer came from another address than the one that it tells.
    void warnOfSender(const HeardUnit& unit);

    // Ends the operation under way, because nobody reads what it tells.
    void endEarly();

    // Whether a person can be asked.
    bool canAsk() const;

    // Asks a person. Absent when nobody can be asked or nobody answered.
    std::optional<std::string> ask(const std::string& question);

    // Why another host cannot be found at an address; absent without an objection.
    static Refusal refusalOfAddress(AddressObjection objection, std::uint32_t address);

    // Why a datagram was not sent, as the reason why a command cannot go on; absent without one.
    static Refusal refusalOfSend(const std::optional<SendFailure>& failure);

    // Ends the command: tells the failure, prints the document, and returns the exit status.
    // Without a failure it ends with another status where that is given.
    int finish(std::optional<Failure> failure = {}, int statusWithoutFailure = exitDone);

private:
    Refusal lookAtCapture();
    Refusal chooseNamedInterface(const std::string& name);
    void openCapture();
    void writeCapture(const Bytes& bytes);
    void endCapture();
    void awaitProgress();
    void showProgress();
    void endProgress();
    std::string documentText(std::optional<Failure>& failure, int exitStatus);
    Failure interruption() const;
    Refusal objectionToReach(const HeardUnit& unit) const;
    void tellFailure(const Failure& failure);

    const CommandLine& _line;
    CommandServices _services;
    Document _document;
    std::vector<HostInterface> _interfaces;
    std::vector<HostInterface> _chosen;
    std::unique_ptr<OutputFile> _captureFile;   // null without a capture
    std::unique_ptr<OutputFile> _savedDocument; // null when it is not saved
    std::unique_ptr<CapturingSystemCalls> _capture;
    bool _captureHasBegun = false;
    std::unique_ptr<UnitExchange> _exchange;
    Operation* _operation = nullptr; // under way
    std::chrono::milliseconds _begun;
    std::function<std::string()> _count; // how far the operation has come; may be empty
    std::function<std::string()> _left;  // how long it will still take; may be empty
    RunLoop::Handle _nextProgress;
    int _signal = 0;
    bool _showsProgress = false;
};

// "“FILE” cannot be written: No space left on device."
std::string sentenceOfFile(const std::string& path, const Error& error);

// The command line without the program's name. When there is nothing to run, because it is wrong or
// asks for help or the version, that has been told, and the result is the exit status.
std::variant<CommandLine, int> readCommandLine(const std::vector<std::string>& arguments,
                                               Console& console);

} // namespace kx
