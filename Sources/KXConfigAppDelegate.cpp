#include "KXConfigAppDelegate.h"

#include "System Configuration/InterfaceTitles.h"
#include "support/LocalizedText.h"
#include "words/InterfaceText.h"

#include <algorithm>
#include <utility>

namespace kx {

KXConfigAppDelegate::KXConfigAppDelegate(const MainWindowOutlets& outlets, const Services& services)
    : _outlets(outlets)
    , _services(services)
    , _devicesD(services.mostUnits)
    , _allUnits([this](std::uint32_t link) { return _services.systemCalls.nameForLink(link); },
                std::min(services.mostUnits, AllUnits::defaultLimit))
    , _session({.runLoop = services.runLoop,
                .hostResolver = services.hostResolver,
                .systemCalls = services.systemCalls,
                .receiveBuffers = services.receiveBuffers},
               _devicesD, *this, this)
    , _requestPace(services.runLoop, [this] { requestParametersOwed(); })
    , _quietLine([this](std::string_view text, bool meansTrouble) {
        _outlets.quietLine->setMeansTrouble(meansTrouble);
        _outlets.quietLine->setStringValue(text);
    })
    , _saving(services.saving, outlets.savePanel, services.wallClock,
              [this](std::string sentence) { _quietLine.showMessage(std::move(sentence)); })
    , _holderLookup({.runLoop = services.runLoop,
                     .systemCalls = services.systemCalls,
                     .neighbours = services.neighbours,
                     .interfaces = services.networkInterfaces,
                     .unitOf =
                         [this](std::string_view hardwareAddress) {
                             return unitOfHardwareAddress(hardwareAddress);
                         }},
                    [this] { refreshForecast(); }) {}

KXConfigAppDelegate::~KXConfigAppDelegate() {
    _outlets.unitSelectPopUp->setDimming({}, {});
}

void KXConfigAppDelegate::applicationDidFinishLaunching() {
    localAddress = 0;
    _chosenInterface.reset();
    limitLog();
    logText.clear();
    _outlets.eventLogDrawer->close();

    _lineStarts = parameterLineStarts();
    listInterfaces(currentInterfaceTitles());

    _session.stop();
    _devicesD.clear();
    _devicesD.keep(std::nullopt);
    _allUnits.clear();
    _selectedUnit.reset();
    _editTableEntry = std::make_shared<KXParameterEntry>();
    _auth.reset();
    _textBeingTyped.reset();
    _unitOfRow.reset();
    _returnWasPressed = false;
    _listedHolder.reset();
    _holderLookup.cancel();
    _quietLine.showForecast({});
    _shownTarget.reset();
    _discovery = {};
    _discoveriesUnderWay = 0;
    dimSilentUnits();
    discoverButton();
    optionCommandPopUp();
}

void KXConfigAppDelegate::applicationWillTerminate() {
    _delayedCalls.clear();
    _isDiscoveryLineDue = false;
    _patience = {};
    _holderLookup.cancel();
    _requestPace.reset();
    _outlets.unitSelectPopUp->setDimming({}, {});
    logText.clear();
    _session.stop();
    _devicesD.clear();
    _devicesD.keep(std::nullopt);
    _allUnits.clear();
    _selectedUnit.reset();
    _editTableEntry.reset();
    _auth.reset();
}

void KXConfigAppDelegate::windowWillClose() {
    _services.application.terminate();
}

std::vector<std::string> KXConfigAppDelegate::currentInterfaceTitles() const {
    if (_services.networkInterfaces == nullptr) {
        return {};
    }
    return _services.networkInterfaces->bsdTitlesAndServiceIDs(nullptr).value_or(
        std::vector<std::string>());
}

void KXConfigAppDelegate::listInterfaces(std::vector<std::string> titles) {
    auto& popUp = *_outlets.interfacePopUp;
    popUp.removeAllItems();
    popUp.addItemsWithTitles(titles.empty() ? TitleList{localizedText("No configured interfaces")}
                                            : titles);
    popUp.setEnabled(!titles.empty());
    _interfaceTitles = std::move(titles);
    describeInterface();
}

// The chosen interface stays selected while it exists, also under another name, and is selected
// again when it comes back. While it is gone nothing is selected, because another interface must
// not look as if it had been chosen. Before any choice the selected interface stays selected; when
// it is gone, the first one is selected.
void KXConfigAppDelegate::interfacePopUpWillOpen() {
    auto titles = currentInterfaceTitles();
    if (titles == _interfaceTitles) {
        return;
    }
    const std::string wanted =
        _chosenInterface.value_or(_outlets.interfacePopUp->titleOfSelectedItem().value_or(""));
    listInterfaces(std::move(titles));
    const auto isWantedInterface = [name = bsdNameForTitle(wanted)](const std::string& title) {
        return bsdNameForTitle(title) == name;
    };
    auto kept = std::ranges::find(_interfaceTitles, wanted);
    if (kept == _interfaceTitles.end()) {
        kept = std::ranges::find_if(_interfaceTitles, isWantedInterface);
    }
    if (kept != _interfaceTitles.end()) {
        _outlets.interfacePopUp->selectItemWithTitle(*kept);
    } else if (_chosenInterface.has_value() && !_interfaceTitles.empty()) {
        _outlets.interfacePopUp->selectItemWithTitle("");
    }
}

void KXConfigAppDelegate::interfaceSelect() {
    // Without interfaces the pop-up holds a message, which is none.
    _chosenInterface =
        _interfaceTitles.empty() ? std::nullopt : _outlets.interfacePopUp->titleOfSelectedItem();
    const auto chosen =
        _chosenInterface.has_value() && _services.networkInterfaces != nullptr
            ? addressOfInterface(*_services.networkInterfaces, bsdNameForTitle(*_chosenInterface))
            : InterfaceAddress();
    localAddress = chosen.address;
    localMask = chosen.mask;
    describeInterface();
    lookAtTarget();
}

// With the address and the mask of the choice, because those are used.
void KXConfigAppDelegate::describeInterface() {
    const auto chosen = chosenInterface();
    const bool canLook = chosen.has_value() && _services.networkInterfaces != nullptr;
    const auto state =
        canLook ? _services.networkInterfaces->interfaceState(chosen->name) : std::nullopt;
    const bool hasInterfaces = !_interfaceTitles.empty();
    _outlets.interfacePopUp->setDescription(
        hasInterfaces ? descriptionOfInterface(chosen, state, broadcastAddress()) : "");
}

std::optional<ChosenInterface> KXConfigAppDelegate::chosenInterface() const {
    if (!_chosenInterface.has_value()) {
        return std::nullopt;
    }
    return ChosenInterface{.name = bsdNameForTitle(*_chosenInterface),
                           .address = {.address = localAddress, .mask = localMask}};
}

std::optional<std::string> KXConfigAppDelegate::nameOfChosenInterface() const {
    const auto chosen = chosenInterface();
    return chosen.has_value() ? std::optional(chosen->name) : std::nullopt;
}

std::uint32_t KXConfigAppDelegate::broadcastAddress() const {
    return directedBroadcastAddress(localAddress, localMask);
}

Everybody KXConfigAppDelegate::everybody() {
    const auto chosen = chosenInterface();
    return {.address = broadcastAddress(),
            .link = chosen.has_value() ? _session.linkForName(chosen->name) : 0};
}

void KXConfigAppDelegate::udpPortSelect() {
    discoverButton();
}

void KXConfigAppDelegate::myHelp() {
    openHelp("index");
}

void KXConfigAppDelegate::openHelp(std::string_view page) {
    if (!_services.openHelpAnchor) {
        return;
    }
    const bool isOpen = _services.openHelpAnchor(page) ||
                        (_services.openHelpInViewer && _services.openHelpInViewer(page));
    if (isOpen) {
        endMessage();
    } else if (_services.hasHelpPage && !_services.hasHelpPage(page)) {
        _quietLine.showMessage(localizedText("The pages of the help are not installed."));
    } else {
        _quietLine.showMessage(
            localizedText("Help could not be opened in a web browser. To read it here, press "
                          "Alt+Shift+F1."));
    }
}

void KXConfigAppDelegate::performAfterDelay(std::chrono::milliseconds delay,
                                            void (KXConfigAppDelegate::*operation)()) {
    const auto call = _delayedCalls.emplace(_delayedCalls.end());
    *call = _services.runLoop.callOnceAfter(delay, [this, call, operation] {
        _delayedCalls.erase(call);
        (this->*operation)();
    });
}

} // namespace kx
