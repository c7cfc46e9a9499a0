// Configures many units from a file: the values and the sequence behind the window *Configure from
// File…*.
//
// A person chooses a file. Its units are asked, and the plan says what would change. Apply asks
// them once more, and sends only what the person has seen: when a unit is not as the plan shows it,
// the new plan is shown and nothing is sent. Then the plan is carried out (conversation/PlanRun.h).
// To revert a run is to make the plan of the old values, which is looked at and applied like any
// other.
//
// It has a listener of its own on the first of the four ports that is free, and has it only while
// it asks or applies. The main window keeps its port, hears nothing of the run, and its event log
// stays as it is.
//
// The journal of a run lies beside the file that was chosen; where that folder takes no file, in
// the folder of the program's state.
//
// Threading: the main thread only; nothing but files is waited for. An entry of the ARP cache may
// ask a person for administrator rights (conversation/AddressBindings.h). Ownership: the services
// and the panels must outlive the object.

#pragma once

#include "Outlets.h"
#include "conversation/AddressMove.h"
#include "conversation/BindingRelease.h"
#include "conversation/HostInterface.h"
#include "conversation/NewAddressSearch.h"
#include "conversation/NewAddresses.h"
#include "conversation/PlanRun.h"
#include "conversation/RowSearch.h"
#include "conversation/RunLock.h"
#include "conversation/UnitExchange.h"
#include "files/JournalFile.h"
#include "files/JournalFolder.h"
#include "files/TableFile.h"
#include "support/WallClock.h"
#include "words/PlanCells.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

class KXTableRun {
public:
    struct Services {
        UnitSession::Services session;
        MonotonicClock now;
        std::function<std::chrono::seconds()> utc; // since the epoch
        const WallClock& wallClock;
        HostInterfaces& interfaces;
        AddressMove::Services moves;
        RunLock& lock;

        // Writes the whole of a file, or leaves what stands there. Absent when it was written.
        std::function<std::optional<Error>(const std::string& path, std::string_view text)>
            writeFile;

        // The folder of the program's state. It is made when it is needed.
        std::string stateFolder;

        // The interface that a person has chosen in the main window, by its name in the system. May
        // be empty.
        std::function<std::optional<std::string>()> chosenInterface = {};

        // Requests from this port of this host are this program's own; port 0 ends that. May be
        // empty.
        std::function<void(std::uint16_t port, std::vector<std::uint32_t> ownAddresses)> usesPort =
            {};
    };

    struct Panels {
        OpenPanel* open = nullptr; // may be null, then no file is chosen
        SavePanel* save = nullptr; // may be null, then no report is saved
    };

    enum class Stage {
        empty,    // no file, or one that cannot be read
        faulty,   // the file has complaints
        unasked,  // the units of the file were not asked, or not to the end
        asking,   // for the plan
        planned,  // the plan is there
        applying, // from Apply to the end of the run
        ended,    // what became of the rows is there
    };

    explicit KXTableRun(Services services);
    ~KXTableRun();
    KXTableRun(const KXTableRun&) = delete;
    KXTableRun& operator=(const KXTableRun&) = delete;

    void setPanels(const Panels& panels) { _panels = panels; }

    // `didChange` is called whenever something below has changed, and ten times a second while
    // units are asked or configured. It must not call an action.
    void setFollower(std::function<void()> didChange) { _didChange = std::move(didChange); }

    // --- Actions. One that is not possible at the moment does nothing. ---

    void chooseFile();                          // asks for a table or a kept plan
    void open(const std::string& path);         // reads it, and asks its units
    void chooseJournal();                       // asks for the journal of a run
    void openJournal(const std::string& path);  // the plan of the old values
    void revert();                              // the same for the run that has just ended
    void useInterface(const std::string& name); // by its name in the system; another one is asked
    void ask();                                 // makes the plan anew
    void apply();
    void stop(); // what is under way is finished and read back; nothing else begins
    void setKeepsGoing(bool keepsGoing);
    void saveReport();

    // Stops, and calls `ended` when nothing is under way any more: at once when nothing is now.
    // When several wait for that, they are called in their order.
    void stopThen(std::function<void()> ended);

    // Stops, and a unit under way gets no further command. It may be left half configured.
    void breakOff();

    bool canChoose() const;
    bool canAsk() const;
    bool canApply() const;
    bool canStop() const;
    bool canRevert() const { return _stage == Stage::ended && !_journalPath.empty(); }
    bool canSaveReport() const;
    bool keepsGoing() const { return _options.keepsGoing; }

    // Commands are sent, or are about to be.
    bool isApplying() const { return _stage == Stage::applying; }

    // Nothing new begins any more; what is under way has not ended yet.
    bool isStopping() const { return _isStopping; }

    // A unit of the run is half configured, or has not answered since a command; and what is to be
    // said about each of them.
    bool needsALook() const;
    std::vector<std::string> sentencesAboutUnitsToLookAt() const;

    // --- What there is to see ---

    Stage stage() const { return _stage; }
    const std::string& path() const { return _file.path; } // of the file; empty without one

    // The interfaces on which units can be asked, and the place of the one that is asked; absent
    // while a person has to choose. A plan keeps its interface, whatever is chosen in the main
    // window later.
    const std::vector<HostInterface>& interfaces() const { return _askable; }
    std::optional<std::size_t> chosenInterface() const;

    // Reads the interfaces of this host again.
    void refreshInterfaces();

    // How things are, in one or two sentences; and whether they mean trouble.
    std::string heading() const;
    bool meansTrouble() const;

    // Where the journal is, or will be; empty without a file.
    std::string journalLine() const;

    // The lines of the table. When the number of the list has changed, they are other lines;
    // otherwise they may have other states.
    std::size_t listNumber() const { return _listNumber; }
    std::size_t lineCount() const;
    std::string cell(std::size_t line, PlanColumn column) const;

    // The line that a person should see first: of a unit that needs a look, of the first row that
    // is refused or silent, or the first fault. Absent when all is well.
    std::optional<std::size_t> lineToLookAt() const;

    struct Progress {
        std::size_t ended = 0;
        std::size_t total = 0; // 0 while nothing can be counted
        std::string text = {}; // "37 of 200 units, about 12 s left"; empty without a count
    };
    Progress progress() const;

private:
    struct WrittenJournal;
    using Continuation = void (KXTableRun::*)();

    const UnitPlan& plan() const { return _run != nullptr ? _run->plan() : _plan; }
    void changed();
    void tick();
    void show(Stage stage, std::string message = {});
    void goOn(Continuation next);
    void close();

    void use(TableFile file);
    std::string sentenceOfStage() const;
    std::string sentenceOfAsking() const;
    std::string objectionToApply() const;

    bool openExchange();
    std::string objectionToInterface() const;
    void search(Continuation next);
    UnitPlan planOfAnswers() const;
    std::string faultOfSearch() const;
    void didAsk();
    void didFindHolders();

    std::vector<KeptJournal> journalsBefore() const;
    void releaseLeftEntries();
    void didRelease();
    void searchAgain();
    void didAskAgain();
    void keepRefusals(UnitPlan& fresh) const;
    bool isAsShown(const UnitPlan& fresh) const;
    void carryOut();
    std::optional<Error> openJournalIn(const std::string& folder);
    std::optional<Error> beginJournal();
    void didCarryOut();
    std::string messageOfRun() const;
    std::string folderOfFile() const;

    Services _services;
    Panels _panels;
    std::function<void()> _didChange;
    std::vector<std::function<void()>> _whenStopped; // wait for the end of what is under way

    Stage _stage = Stage::empty;
    TableFile _file;
    UnitPlan _plan;
    std::vector<PlanLine> _lines;
    std::size_t _listNumber = 0;
    std::string _message;            // what went wrong
    std::string _faultOfReport = {}; // why the report was not written the last time
    std::string _lost;               // values that no command brings back
    std::string _leftEntry;          // an entry of a killed run that is still in the ARP cache
    std::string _journalPath;
    std::vector<HostInterface> _all;
    std::vector<HostInterface> _askable;
    std::string _interfaceName;   // chosen here; empty before
    std::string _interfaceOfPlan; // on which the units of the file were asked; empty before
    PlanRun::Options _options;
    bool _isStopping = false;
    std::chrono::milliseconds _firstCommand{0};

    std::unique_ptr<HeldRunLock> _held;
    std::unique_ptr<UnitExchange> _exchange; // outlives the operations below
    std::unique_ptr<WrittenJournal> _journal;
    std::vector<KeptJournal> _left; // journals that name entries of the ARP cache
    std::unique_ptr<BindingRelease> _release;
    std::unique_ptr<RowSearch> _search;
    std::vector<NewAddress> _newAddresses; // in the order of the next search
    std::unique_ptr<NewAddressSearch> _holders;
    std::unique_ptr<PlanRun> _run;
    RunLoop::Handle _nextTick;
    RunLoop::Handle _nextStep;
};

} // namespace kx
