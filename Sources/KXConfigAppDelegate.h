// The window's controller: it passes a person's actions to the parts beneath it and shows their
// results. conversation/UnitSession.h sends and receives, units/ describes units, and words/ writes
// the texts that a person reads.
//
// It is the delegate of the application, of the main window, of the UDP endpoint and of the
// parameter table, and the data source of the one-row edit table. It talks to controls (Outlets.h)
// and services through interfaces, so it knows no screen and no operating system.
//
// Threading: everything on the main thread; each operation runs to completion before the next
// event. arpSetEAForIP(), which asks and alerts a person, holds the run loop meanwhile. Ownership:
// the controller owns the values of its fields. Controls and services belong to the maker of the
// controller and must outlive it. Failures of the network go to the event log, and no failure stops
// the program. Data that breaks its own format is abandoned with a line in the system log.

#pragma once

#include "KXParameterEntry.h"
#include "KXSaving.h"
#include "Outlets.h"
#include "System Configuration/NetworkInterfaces.h"
#include "conversation/AllUnits.h"
#include "conversation/ChosenInterface.h"
#include "conversation/CommandTarget.h"
#include "conversation/DiscoveryFacts.h"
#include "conversation/DiscoveryFindings.h"
#include "conversation/EditOutcome.h"
#include "conversation/EditTrouble.h"
#include "conversation/HolderLookup.h"
#include "conversation/InterfaceAddress.h"
#include "conversation/RequestOutcome.h"
#include "conversation/RequestPace.h"
#include "conversation/RequestTarget.h"
#include "conversation/UnitDestination.h"
#include "conversation/UnitSession.h"
#include "support/Authorization.h"
#include "support/InstanceNames.h"
#include "support/WallClock.h"
#include "tables/TableViewDataSource.h"
#include "units/UnitRegistry.h"
#include "words/LogText.h"
#include "words/ParameterLines.h"
#include "words/QuietLine.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kx {

class NeighbourTable;

class KXConfigAppDelegate final : public UDPEchoDelegate,
                                  public TableViewDataSource,
                                  public WindowDelegate,
                                  private UnitSessionObserver {
public:
    struct Services {
        RunLoop& runLoop;
        HostResolver& hostResolver;
        DatagramSystemCalls& systemCalls;
        const WallClock& wallClock;
        Application& application;
        NetworkInterfaces* networkInterfaces; // when null, the host's configuration is not read

        // Opens the help at an anchor and returns false when there is no such page. Empty when
        // there is no help.
        std::function<bool(std::string_view anchor)> openHelpAnchor = {};

        AuthorizationService* authorizationService = nullptr; // when null, nobody gives rights

        // May be null. The listener then keeps the buffer that it begins with, and lost datagrams
        // are not reported.
        ReceiveBufferControl* receiveBuffers = nullptr;

        // Returns whether the help has the page, so that a message can say why it did not open.
        // When this is empty, every page counts as present.
        std::function<bool(std::string_view page)> hasHelpPage = {};

        // The most units that are kept. The sentence about them names the default.
        std::size_t mostUnits = UnitRegistry::defaultLimit;

        // May be null. Nobody looks then on which link an ARP entry stands, and who holds an
        // address.
        NeighbourTable* neighbours = nullptr;

        // The likeliest reason why no unit has answered, as a sentence; absent when it is not
        // known. Asked at the end of a discovery that nobody answered. It must send nothing. May be
        // empty.
        std::function<std::optional<std::string>()> likeliestCause = {};

        // Opens the help at an anchor in the program's own viewer, where openHelpAnchor could not
        // open it. Empty when there is no viewer.
        std::function<bool(std::string_view anchor)> openHelpInViewer = {};

        // What a session is saved from, and how. Without a record no session can be saved.
        KXSaving::Services saving = {};
    };

    KXConfigAppDelegate(const MainWindowOutlets& outlets, const Services& services);

    // Stops the endpoint, which reports nothing after that.
    ~KXConfigAppDelegate() override;
    KXConfigAppDelegate(const KXConfigAppDelegate&) = delete;
    KXConfigAppDelegate& operator=(const KXConfigAppDelegate&) = delete;

    // --- Lifecycle (KXConfigAppDelegate.cpp) ---

    // Fills the interface pop-up, discovers, and prepares the option command.
    void applicationDidFinishLaunching();

    // Stops the endpoint and releases everything. No delayed call runs after it.
    void applicationWillTerminate();

    // Closing the main window ends the application.
    void windowWillClose();

    // --- Actions of the controls ---

    void interfacePopUpWillOpen();    // lists the interfaces as they are now; changes no choice
    void interfaceSelect();           // takes over address and mask; sends and logs nothing
    void udpPortSelect();             // discovers on the chosen port
    void discoverButton();            // restarts the listener and broadcasts a parameter request
    void unitSelectPopUp();           // shows the chosen unit
    void reloadUnitParameterButton(); // asks the selected unit, or every unit, for its parameters
    void applyEditParameterButton();  // ends any edit in progress and sends the edit row's value
    void optionCommandPopUp();        // prepares the text of an option command
    void sendOptionButton();          // sends it
    void restoreDefaultSettings();    // asks for factory settings, and 1.0 s later for parameters

    // A person points at Reload or Restore Defaults, by the keyboard, the mouse or a menu, or at
    // neither any more. The quiet line says whom the button reaches.
    void pointAtRequest(std::optional<RequestKind> button);
    void logDrawerButton(); // opens or closes the event log drawer
    void myHelp();          // opens the help at its index
    void saveEventLog();    // asks for a file, and writes the log into it as text
    void saveSession();     // asks for a file, and writes the kept datagrams into it

    // Opens the help at this page. When it does not open, the quiet line says why.
    void openHelp(std::string_view page);

    // Shows the unit of this serial number, as if it had been chosen in the unit pop-up, which
    // lists it then. Does nothing for a unit that is not in devices().
    void pickUnit(std::string_view serial);

    // The parameter table's selection changed: copies the row into the edit row.
    void tableViewSelectionDidChange();

    // The text in the edit row's open editor changed to `text`. The quiet line says what Apply
    // would send for it; nothing is stored. When an edit is cancelled, call this with the stored
    // text.
    void editTextDidChange(std::string_view text);

    // Return was pressed in the edit row's editor. It ends the typing and applies nothing, so the
    // quiet line says what does.
    void editTextWasKept();

    // Texts by which a person knows a listed unit beside its serial number: the unit ID and the
    // address, as far as it has told them.
    std::vector<std::string> detailsOfUnit(std::string_view serialNumber) const;

    // --- Edits of the selected unit's parameters (KXConfigAppDelegate_Editing.cpp) ---
    //
    // Each sends the value of the edit row as the parameter of its name, converted as
    // units/UnitCommand.h says. An empty value sends nothing and logs nothing.

    void edit_internalMAC();
    void edit_destIP();
    void edit_destPort();
    void edit_devicePort();
    void edit_unitID();
    void edit_destMAC();
    void edit_serial();

    // Also writes a static ARP entry for the new address, because the unit does not hold that
    // address yet. The command goes to the new address even when the entry could not be written.
    // The unit's record loses its address, so no further command is sent until the unit has told
    // its parameters.
    void edit_internalIP();

    // Writes a static entry into the host's ARP cache. The arguments of the tool are "-s", the IP
    // text and the hardware address text; the list ends before the first text that is absent.
    // Returns the result of Authorization::runToolWithArgs(), or -1, with an alert, when rights
    // were not given. Returns when the person who is asked or told has answered, and at most two
    // seconds after the start of the tool. Windows are painted meanwhile; datagrams and delayed
    // calls that come meanwhile are handled afterwards. The application may end meanwhile: then
    // nobody is told, and the result is -1.
    std::int32_t arpSetEAForIP(const std::optional<std::string>& hardwareAddress,
                               const std::optional<std::string>& ip);

    // --- The edit table's values: always one row, the columns of KXParameterEntry ---
    // A column of any other identifier reads as the empty text and stores nothing.

    int numberOfRowsInTableView() override;
    std::optional<PropertyListValue>
    tableViewObjectValueForTableColumnRow(const TableColumn& column, int row) override;
    void tableViewSetObjectValueForTableColumnRow(const PropertyListValue& value,
                                                  const TableColumn& column, int row) override;

    // --- The endpoint's events, which the session handles ---

    void echoDidReceiveDataFromAddress(UDPEcho& echo, const Bytes& data,
                                       const Bytes& address) override;
    void echoDidReceiveError(UDPEcho& echo, const Error& error) override;
    void echoDidSendDataToAddress(UDPEcho& echo, const Bytes& data, const Bytes& address) override;
    void echoDidFailToSendDataToAddressError(UDPEcho& echo, const Bytes& data, const Bytes& address,
                                             const Error& error) override;
    void echoDidStartWithAddress(UDPEcho& echo, const Bytes& address) override;
    void echoDidStopWithError(UDPEcho& echo, const Error& error) override;

    // --- Commands to units (KXConfigAppDelegate_Session.cpp) ---

    // Sends a command to a dotted IPv4 address, on the selected unit's device port or on 3520. True
    // when the command was handed to the listener; the event log tells when the send then fails.
    // False, with nothing logged, when a text is absent, there is no listener, or the command is
    // not ASCII.
    bool sendCommandToAddress(const std::optional<std::string>& command,
                              const std::optional<std::string>& address);

    // Sends a command to the selected unit; false also when its address is not known.
    bool sendCommand(const std::optional<std::string>& command);

    // --- Event log (KXConfigAppDelegate_EventLog.cpp) ---

    // The most bytes of entries that the log keeps. Beyond it the oldest go, some 64 KiB at a time,
    // and a line at the beginning of the log says so.
    static constexpr std::size_t mostLogBytes = std::size_t{256} * 1024 * 1024;

    // Appends one entry. An entry begins with its own line break; line feeds of foreign texts in it
    // are quoted (support/QuotedLines.h).
    void appendString(std::string_view text);

    // --- Values of the fields, for tests and fronts ---

    Window* window() const { return _outlets.window; }
    void setWindow(Window* window) { _outlets.window = window; }

    std::string eventLog() const { return logText.text(); }                       // a copy
    std::string shownLog() const { return logText.shownText(0, logText.size()); } // as it is shown
    const UnitRegistry& devices() const { return _devicesD; }
    const std::optional<std::string>& selectedUnit() const { return _selectedUnit; }
    std::optional<std::string> nameOfChosenInterface() const; // in the system; absent before
    const UDPEcho* udpListener() const { return _udpListener.get(); } // null when there is none
    const QuietLine& quietLine() const { return _quietLine; }
    AllUnits& allUnits() { return _allUnits; }

private:
    // --- The session's events (KXConfigAppDelegate_Session.cpp) ---

    void sessionDidStart(const Bytes& localAddress) override;
    void sessionCanBroadcast() override;
    void sessionCannotBroadcast(const std::string& reason) override;
    void sessionDidStop(const Error& error) override;
    void sessionDidReceiveDatagram(std::size_t length, const DatagramOrigin& origin) override;
    void sessionDidIgnoreDatagram(PacketKind kind, const DatagramOrigin& origin) override;
    void unitDidTellParameters(const Reply& reply, const DecodedUnitParameters& parameters,
                               const DatagramOrigin& origin) override;
    void unitDidAccept(const Reply& reply, const DatagramOrigin& origin) override;
    void unitDidSendOtherReply(const Reply& reply, const DatagramOrigin& origin) override;
    void sessionDidReceiveError(const Error& error) override;
    void sessionDidSend() override;
    void sessionDidFailToSend(const SendFailure& failure) override;
    void sessionDidDrop(std::uint32_t datagrams) override;

    void listInterfaces(std::vector<std::string> titles);
    std::vector<std::string> currentInterfaceTitles() const;
    std::optional<ChosenInterface> chosenInterface() const;

    // Every unit on the chosen interface's link. Before a choice the routes decide.
    std::uint32_t broadcastAddress() const;
    bool broadcastCanLeave() const;
    Everybody everybody();

    // The link on which the selected unit was heard last; 0 when none is selected.
    std::uint32_t linkOfSelectedUnit() const;

    const UnitRecord* selectedRecord() const;
    std::optional<std::string> selectedText(UnitParameter parameter) const;

    // The same without the zero bytes with which a unit fills up a short unit ID.
    std::optional<std::string> shownValue(UnitParameter parameter) const;
    UnitDestination unitDestination();
    CommandTarget commandTarget() const;

    void didStartListenerWithAddress(const Bytes& address);
    void compareReply(const Reply& reply, const DatagramOrigin& origin);
    void rememberUnit(const DecodedUnitParameters& parameters, const DatagramOrigin& origin);
    void rememberAnswer(const Reply& reply, const DatagramOrigin& origin);
    std::string unitParameters(const DecodedUnitParameters& parameters,
                               const DatagramOrigin& origin);

    std::optional<SendFailure> sendRequest(std::string_view command, UnitDestination destination);
    std::optional<SendFailure> sendTo(std::string_view command, UnitDestination destination);
    // The unit of this serial number, or every unit when it is absent, may answer differently.
    void expectChangeOf(const std::optional<std::string>& serial);
    std::optional<SendFailure> requestParametersOfUnit();
    void requestParametersAfterRestore();
    void requestParametersOwed();

    void discoverComplete();

    // --- The line below Discover (KXConfigAppDelegate_DiscoveryLine.cpp) ---

    void beginDiscovery(std::uint16_t port);
    void discoveryDidAsk(const Everybody& asked, const std::optional<SendFailure>& failure);
    void endDiscovery();
    DiscoveryFacts discoveryFacts() const;
    void showDiscoveryLine();
    void showDiscoveryLineSoon(); // once for all calls of a tenth of a second
    void showDueDiscoveryLine();
    void dimSilentUnits();

    void showSelectedUnit();
    void setSelectedUnit(const std::optional<std::string>& key);

    std::optional<UnitParameter> editedParameter() const;
    std::string editedValue() const;
    void sendEdit(UnitParameter parameter);
    EditOutcome::Unit editedUnit(const ParameterEdit& edit) const;
    void expectSerialNumber(const ParameterEdit& edit);
    bool newSerialNumberIsTaken(const ParameterEdit& edit) const;
    std::shared_ptr<Authorization> authorizationForARP();
    ARPEntry arpEntryAfter(const ToolEnd& end, const std::string& hardwareAddress,
                           std::uint32_t address, std::uint32_t link) const;
    std::string objectionToARPEntry(const std::optional<std::string>& hardwareAddress,
                                    const std::optional<std::string>& ip) const;

    void limitLog();

    // The line of this entry is the comment of the datagram that is sent next, in a saved session.
    // The empty entry takes the comment back.
    void commentNextSend(std::string_view entry);

    // Says whom Reload and Restore Defaults reach now. Called after every change of that.
    // lookAtTarget() reads the host's broadcast addresses first.
    void showTarget();
    void lookAtTarget();
    KnownNetwork knownNetwork(const ParameterEdit& edit);
    CommandTarget targetOfEdit(const std::variant<ParameterEdit, EditRefusal>& edit);
    QuietLine::Forecast forecast();

    // The question who holds the address in the edit row; absent when there is none to ask.
    std::optional<AddressQuestion> questionOfHolder() const;
    std::optional<std::string> unitOfHardwareAddress(std::string_view hardwareAddress) const;
    void showForecast();
    void refreshForecast();
    void endMessage();
    void waitForAnswers();
    void showRequest(RequestKind kind, std::string_view command,
                     const std::optional<SendFailure>& failure);
    void describeInterface();

    void performAfterDelay(std::chrono::milliseconds delay,
                           void (KXConfigAppDelegate::*operation)());

    MainWindowOutlets _outlets;
    Services _services;

    std::vector<std::string> _interfaceTitles;   // titles in the pop-up
    std::optional<std::string> _chosenInterface; // title at the time of the choice; absent before
    LogText logText;
    // Both are in host byte order. The address is 0 when no interface with an address has been
    // chosen.
    std::uint32_t localAddress = 0;
    std::uint32_t localMask = 0;
    UnitRegistry _devicesD;
    AllUnits _allUnits;
    UnitSession _session;
    const std::shared_ptr<UDPEcho>& _udpListener = _session.listener(); // null when there is none
    std::optional<SendFailure> _sendFailure; // failure of the latest command; absent when it left
    ParameterLineStarts _lineStarts;         // those of the language at the launch
    RequestPace _requestPace;
    std::optional<std::string> _acceptedSince; // selected unit whose request is owed
    DiscoveryFindings _findings;
    DiscoveryFacts _discovery; // facts that discoveryFacts() does not look up
    std::optional<Everybody>
        _askedBefore;                   // absent when nothing can be compared with that discovery
    int _discoveriesUnderWay = 0;       // two when Discover was pressed twice
    std::size_t _answeredBefore = 0;    // the number of units that have answered, as told last
    std::size_t _renamedWhenListed = 0; // units that had taken another serial number by then
    bool _isDiscoveryLineDue = false;
    std::optional<std::string> _selectedUnit;
    std::shared_ptr<KXParameterEntry> _editTableEntry; // null before launch and after the end
    std::shared_ptr<Authorization> _auth;              // null until an ARP entry is written
    int _latestARPAttempt = 0;                         // number of attempts, refused ones included
    ARPEntry _arpEntry;                                // result of the latest attempt
    std::optional<std::string> _textBeingTyped;        // text in the edit row, not stored yet
    QuietLine _quietLine;
    KXSaving _saving;
    HolderLookup _holderLookup;                     // of the address in the edit row
    std::vector<std::uint32_t> _broadcastAddresses; // those of the host and that of the choice
    KnownNetwork _knownNetwork;                     // as a person last did something
    ListedHolder _listedHolder;                     // holds the address in the edit row
    std::optional<std::string> _unitOfRow;          // unit selected when the row was chosen
    bool _returnWasPressed = false;                 // in the edit row, since it last changed
    std::optional<RequestKind> _pointedAt;
    RunLoop::Handle _patience;                 // runs while units have time to answer
    std::optional<RequestTarget> _shownTarget; // absent before the first one is shown
    std::list<RunLoop::Handle> _delayedCalls;
};

} // namespace kx
