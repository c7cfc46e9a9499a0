// The line below Discover: its facts, and when it is shown.

#include "KXConfigAppDelegate.h"
#include "support/LocalizedText.h"
#include "words/DiscoveryLine.h"
#include "words/SendFailureText.h"

#include <algorithm>
#include <utility>

namespace kx {

using namespace std::chrono_literals;

namespace {

// Ten thousand answers in a second are shown ten times.
constexpr auto timeBetweenLines = 100ms;

bool isSamePlace(const Everybody& left, const Everybody& right) {
    return left.address == right.address && left.link == right.link;
}

} // namespace

// Address and mask of the chosen interface stay as they were at the choice, and nothing tells when
// they change. So each discovery looks.
void KXConfigAppDelegate::beginDiscovery(std::uint16_t port) {
    const bool wasWhole = _discoveriesUnderWay == 0 && !_discovery.listenerError.has_value() &&
                          !_discovery.requestFailure.has_value() && !_findings.hasDropped();
    _askedBefore = wasWhole ? _discovery.asked : std::nullopt;
    const auto chosen = chosenInterface();
    _discovery = {};
    _discovery.port = port;
    _discovery.isInterfaceChosen = chosen.has_value();
    std::optional<InterfaceFinding> fault;
    if (chosen.has_value() && _services.networkInterfaces != nullptr) {
        const bool exists = _session.linkForName(chosen->name) != noSuchLink;
        fault = faultOfInterface(*_services.networkInterfaces, *chosen, exists);
    }
    _findings.begin(std::move(fault), _devicesD.forgottenUnits());
    _devicesD.beginRound();
    _answeredBefore = 0;
    _renamedWhenListed = 0;
    ++_discoveriesUnderWay;
}

void KXConfigAppDelegate::discoveryDidAsk(const Everybody& asked,
                                          const std::optional<SendFailure>& failure) {
    _discovery.asked = asked;
    if (failure.has_value()) {
        _discovery.requestFailure = reasonOfSendFailure(*failure);
    }
    _discovery.isComparable = _askedBefore.has_value() && isSamePlace(asked, *_askedBefore);
}

// The units in the list are those that have ever answered.
void KXConfigAppDelegate::endDiscovery() {
    _discoveriesUnderWay = std::max(0, _discoveriesUnderWay - 1);
    _discovery.listed = _devicesD.records().size();
    _renamedWhenListed = _devicesD.round().renamed;
    if (_discoveriesUnderWay == 0 && _devicesD.round().answered == 0 && _services.likeliestCause) {
        _discovery.cause = _services.likeliestCause();
    }
    showDiscoveryLine();
}

DiscoveryFacts KXConfigAppDelegate::discoveryFacts() const {
    DiscoveryFacts facts = _discovery;
    facts.isUnderWay = _discoveriesUnderWay > 0;
    facts.finding = _findings.weightiest();
    facts.units = _devicesD.round();
    const std::size_t known = _devicesD.records().size();
    const std::size_t expected = facts.listed + facts.units.renamed - _renamedWhenListed;
    facts.late = facts.isUnderWay ? 0 : known - std::min(known, expected);
    if (facts.units.silent == 1) {
        facts.silentUnit = _devicesD.silentUnit();
    }
    return facts;
}

void KXConfigAppDelegate::showDiscoveryLine() {
    const auto nameOfLink = [this](std::uint32_t link) {
        return _services.systemCalls.nameForLink(link);
    };
    const DiscoveryFacts facts = discoveryFacts();
    _outlets.discoveryLine->setMeansTrouble(meansTrouble(facts));
    _outlets.discoveryLine->setStringValue(discoveryLine(facts, nameOfLink));
    _outlets.unitSelectPopUp->refreshDimming();
}

void KXConfigAppDelegate::showDiscoveryLineSoon() {
    if (!std::exchange(_isDiscoveryLineDue, true)) {
        performAfterDelay(timeBetweenLines, &KXConfigAppDelegate::showDueDiscoveryLine);
    }
}

void KXConfigAppDelegate::showDueDiscoveryLine() {
    _isDiscoveryLineDue = false;
    showDiscoveryLine();
}

void KXConfigAppDelegate::dimSilentUnits() {
    _outlets.unitSelectPopUp->setDimming(
        [this](std::string_view serial) { return !_devicesD.hasAnswered(serial); },
        localizedText("Did not answer the latest Discover."));
}

} // namespace kx
