#include "KXTableRun.h"

#include "KXTableRunJournal.h"
#include "conversation/RunHistory.h"
#include "support/LocalizedText.h"
#include "words/SendFailureText.h"
#include "words/TableFileText.h"
#include "words/UnitPlanText.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kx {

using namespace std::chrono_literals;

namespace {

constexpr auto timeBetweenTicks = 100ms;

constexpr std::array<std::uint16_t, 4> ports{3520, 3521, 3522, 3523};

// The first of them, and how many there are besides.
std::string sentenceOfLostValues(const std::vector<LostValue>& lost) {
    if (lost.empty()) {
        return {};
    }
    std::string text = sentenceOfLostValue(lost.front());
    if (lost.size() > 1) {
        text += ' ' + localizedText("Other values that no command brings back: %d.",
                                    {static_cast<long long>(lost.size() - 1)});
    }
    return text;
}

} // namespace

KXTableRun::KXTableRun(Services services)
    : _services(std::move(services)) {
    refreshInterfaces();
}

KXTableRun::~KXTableRun() {
    close();
}

// --- The file ---

void KXTableRun::chooseFile() {
    if (_panels.open != nullptr && canChoose()) {
        _panels.open->ask({.title = localizedText("Choose a Table of Units"),
                           .kind = localizedText("Tables and plans"),
                           .suffixes = {"csv", "tsv", "txt", "plan", "json"}},
                          [this](const std::string& path) { open(path); });
    }
}

void KXTableRun::open(const std::string& path) {
    if (!canChoose()) {
        return;
    }
    auto read = readTableFile(path);
    if (auto* const file = std::get_if<TableFile>(&read)) {
        _lost.clear();
        use(std::move(*file));
        return;
    }
    use({});
    show(Stage::empty, sentenceOfFileFault(std::get<TableFileFault>(read), path));
}

void KXTableRun::chooseJournal() {
    if (_panels.open != nullptr && canChoose()) {
        _panels.open->ask({.title = localizedText("Choose a Journal"),
                           .kind = localizedText("Journals"),
                           .suffixes = {"jsonl"}},
                          [this](const std::string& path) { openJournal(path); });
    }
}

void KXTableRun::openJournal(const std::string& path) {
    if (!canChoose()) {
        return;
    }
    auto read = readKeptJournal(path);
    if (const auto* const kept = std::get_if<KeptJournal>(&read)) {
        RevertedRows reverted = revertedRows(kept->journal.entries);
        _lost = sentenceOfLostValues(reverted.lost);
        use(tableFileOfRows(std::move(reverted.rows), path));
        return;
    }
    show(_stage, sentenceOfFileFault(std::get<JournalFileFault>(read), path));
}

void KXTableRun::revert() {
    if (canRevert()) {
        openJournal(std::string(_journalPath)); // the path is forgotten meanwhile
    }
}

void KXTableRun::use(TableFile file) {
    _file = std::move(file);
    _plan = {};
    _lines.clear();
    ++_listNumber;
    _journalPath.clear();
    _interfaceOfPlan.clear();
    if (!_file.table.complaints.empty()) {
        show(Stage::faulty);
    } else if (!_file.path.empty()) {
        show(Stage::unasked);
        ask();
    }
}

// --- The interface ---

void KXTableRun::refreshInterfaces() {
    _all = _services.interfaces.list();
    _askable = askableInterfaces(_all);
}

std::optional<std::size_t> KXTableRun::chosenInterface() const {
    std::string name = _interfaceName.empty() ? _interfaceOfPlan : _interfaceName;
    if (name.empty() && _services.chosenInterface) {
        name = _services.chosenInterface().value_or("");
    }
    const auto found = std::ranges::find(_askable, name, &HostInterface::name);
    if (found != _askable.end()) {
        return static_cast<std::size_t>(found - _askable.begin());
    }
    return name.empty() && _askable.size() == 1 ? std::optional<std::size_t>(0) : std::nullopt;
}

void KXTableRun::useInterface(const std::string& name) {
    if (!canChoose()) {
        return;
    }
    const auto before = chosenInterface();
    _interfaceName = name;
    if (chosenInterface() != before) {
        ask();
        changed();
    }
}

std::string KXTableRun::objectionToInterface() const {
    if (_askable.empty()) {
        return localizedText("No network interface can broadcast. It needs a link and an IPv4 "
                             "address.");
    }
    return chosenInterface().has_value()
               ? std::string()
               : localizedText("Choose the network interface on which the units are asked.");
}

// --- The plan ---

void KXTableRun::ask() {
    if (!canAsk()) {
        return;
    }
    refreshInterfaces();
    if (!openExchange()) {
        return;
    }
    _interfaceOfPlan = _askable[chosenInterface().value_or(0)].name;
    _isStopping = false;
    _plan = {};
    _lines.clear();
    ++_listNumber;
    _journalPath.clear();
    show(Stage::asking);
    tick();
    search(&KXTableRun::didAsk);
}

bool KXTableRun::openExchange() {
    std::string objection = objectionToInterface();
    if (objection.empty()) {
        std::vector<std::uint32_t> own;
        for (const HostInterface& interface : _all) {
            for (const NetworkOfInterface& network : interface.networks) {
                own.push_back(network.address);
            }
        }
        _exchange = std::make_unique<UnitExchange>(
            UnitExchange::Services{.session = _services.session, .now = _services.now});
        _exchange->setOwnAddresses(own);
        const auto failure = _exchange->open(ports);
        if (!failure.has_value()) {
            if (_services.usesPort) {
                _services.usesPort(_exchange->port(), std::move(own));
            }
            return true;
        }
        objection = failure->arePortsTaken
                        ? localizedText("All of the UDP ports 3520 to 3523 are taken by other "
                                        "programs.")
                        : localizedText("The UDP port cannot be opened: %@.",
                                        {failure->error.localizedDescription()});
        _exchange.reset();
    }
    show(_stage, std::move(objection));
    return false;
}

// Runs of before tell under which other names a unit may answer.
void KXTableRun::search(Continuation next) {
    std::vector<WantedRow> rows = _file.rows;
    for (const KeptJournal& kept : journalsBefore()) {
        rows = resumedRows(std::move(rows), kept.journal.entries);
    }
    const auto chosen = chosenInterface();
    _search = std::make_unique<RowSearch>(*_exchange, std::move(rows),
                                          std::vector{_askable[chosen.value_or(0)]});
    _search->begin([this, next] { goOn(next); });
}

UnitPlan KXTableRun::planOfAnswers() const {
    return planOfRows(_search->rows(), _search->heard(),
                      {.interfaces = _all, .asked = _search->asked()});
}

// Why there can be no plan; empty when there can.
std::string KXTableRun::faultOfSearch() const {
    if (_search->isInterrupted()) {
        return localizedText("Stopped.");
    }
    const auto& failure = _search->failure();
    return _search->hasAsked() || !failure.has_value() ? std::string()
                                                       : noteOfSendFailure(*failure);
}

// Nothing but requests for parameters leaves for a plan, so no probe is sent.
void KXTableRun::didAsk() {
    std::string fault = faultOfSearch();
    if (!fault.empty()) {
        close();
        show(Stage::unasked, std::move(fault));
        return;
    }
    _plan = planOfAnswers();
    _newAddresses = newAddressesOf(_plan);
    _holders = std::make_unique<NewAddressSearch>(
        *_exchange, HolderSearch::Services{.neighbours = _services.moves.holders.neighbours},
        questionsAbout(_newAddresses));
    _holders->begin([this] { goOn(&KXTableRun::didFindHolders); });
}

void KXTableRun::didFindHolders() {
    if (_isStopping) {
        _plan = {};
        close();
        show(Stage::unasked, localizedText("Stopped."));
        return;
    }
    for (std::size_t i = 0; i < _newAddresses.size(); ++i) {
        noteHolders(_plan, _newAddresses[i].row, _holders->results()[i]);
    }
    _lines = linesOfPlan(_plan);
    ++_listNumber;
    close();
    show(Stage::planned, std::exchange(_lost, {}));
}

// --- What is possible ---

bool KXTableRun::canChoose() const {
    return _stage != Stage::asking && _stage != Stage::applying;
}

bool KXTableRun::canAsk() const {
    return _stage == Stage::unasked || _stage == Stage::planned || _stage == Stage::ended;
}

bool KXTableRun::canApply() const {
    return _stage == Stage::planned && _plan.sum(RowState::planned) > 0 &&
           objectionToApply().empty();
}

bool KXTableRun::canStop() const {
    return (_stage == Stage::asking || _stage == Stage::applying) && !_isStopping;
}

bool KXTableRun::canSaveReport() const {
    return (_stage == Stage::planned || _stage == Stage::ended) && !_plan.rows.empty();
}

void KXTableRun::setKeepsGoing(bool keepsGoing) {
    _options.keepsGoing = keepsGoing;
    changed();
}

// --- Steps ---

void KXTableRun::changed() {
    if (_didChange) {
        _didChange();
    }
}

void KXTableRun::tick() {
    _nextTick = _services.session.runLoop.callOnceAfter(timeBetweenTicks, [this] { tick(); });
    changed();
}

void KXTableRun::show(Stage stage, std::string message) {
    _stage = stage;
    _message = std::move(message);
    _faultOfReport.clear();
    changed();
    if (canChoose()) {
        for (const auto& ended : std::exchange(_whenStopped, {})) {
            ended();
        }
    }
}

// An operation has ended, maybe inside a call of the exchange, which must not go before it returns.
void KXTableRun::goOn(Continuation next) {
    _nextStep = _services.session.runLoop.callOnceAfter(0ms, [this, next] { (this->*next)(); });
}

// Nothing is under way any more.
void KXTableRun::close() {
    _nextTick.reset();
    _run.reset();
    _holders.reset();
    _search.reset();
    _release.reset();
    _journal.reset();
    _left.clear();
    if (_exchange != nullptr && _services.usesPort) {
        _services.usesPort(0, {});
    }
    _exchange.reset();
    _held.reset();
    _isStopping = false;
}

} // namespace kx
