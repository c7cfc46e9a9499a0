#include "KXConfigAppDelegate.h"

#include "CommandProtocol.h"
#include "System Configuration/InterfaceTitles.h"
#include "addresses/IPv4Address.h"
#include "addresses/SocketAddressRecord.h"
#include "support/LocalizedText.h"
#include "support/SystemLog.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace kx {

KXConfigAppDelegate::KXConfigAppDelegate(const MainWindowOutlets& outlets, const Services& services)
    : _outlets(outlets)
    , _services(services) {}

KXConfigAppDelegate::~KXConfigAppDelegate() {
    stopListener();
}

void KXConfigAppDelegate::applicationDidFinishLaunching() {
    localAddress = 0;
    _chosenInterface.reset();
    logText.clear();
    _outlets.eventLogDrawer->close();

    for (const UnitParameter parameter : allUnitParameters) {
        _parameterNamesInLog[static_cast<std::size_t>(parameter)] =
            localizedText(nameOfUnitParameter(parameter));
    }
    listInterfaces(currentInterfaceTitles());

    stopListener();
    _devicesD.clear();
    _serials.clear();
    _selectedUnit.reset();
    _editTableEntry = std::make_shared<KXParameterEntry>();
    _auth.reset();
    _textBeingTyped.reset();
    _editReport.reset();
    discoverButton();
    optionCommandPopUp();
}

void KXConfigAppDelegate::applicationWillTerminate() {
    _delayedCalls.clear();
    _dropsWillBeCounted = false;
    logText.clear();
    stopListener();
    _devicesD.clear();
    _serials.clear();
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
}

// The chosen interface stays selected while it exists, also under another name, and is selected
// again when it comes back. While it is gone nothing is selected: another interface must not look
// as if it had been chosen. Before any choice, what is selected stays so, or else the first is.
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
    const auto title = _outlets.interfacePopUp->titleOfSelectedItem();
    _chosenInterface = title;
    const auto serviceID =
        title.has_value() && _services.networkInterfaces != nullptr
            ? _services.networkInterfaces->serviceIDForInterface(bsdNameForTitle(*title))
            : std::nullopt;
    localAddress = firstAddressOfService(serviceID, "Addresses");
    localMask = firstAddressOfService(serviceID, "SubnetMasks");
}

// 0 for whatever is missing or does not parse: broadcasts then go to every link.
std::uint32_t
KXConfigAppDelegate::firstAddressOfService(const std::optional<std::string>& serviceID,
                                           std::string_view key) const {
    if (!serviceID.has_value()) {
        return 0;
    }
    const auto value =
        _services.networkInterfaces->serviceDataForDictionaryNameKey(*serviceID, "IPv4", key);
    const PropertyList* const addresses = value.has_value() ? value->list() : nullptr;
    const std::string* const first =
        addresses != nullptr && !addresses->empty() ? addresses->front().text() : nullptr;
    return first != nullptr ? ipForString(*first) : 0;
}

std::uint32_t KXConfigAppDelegate::directedBroadcastAddress() const {
    return localAddress != 0 ? localAddress | ~localMask : ipForString(allOnesBroadcastAddress);
}

void KXConfigAppDelegate::udpPortSelect() {
    discoverButton();
}

void KXConfigAppDelegate::myHelp() {
    if (!_services.openHelpAnchor) {
        return;
    }
    if (_services.openHelpAnchor("index")) {
        endMessage();
    } else if (_services.hasHelpPage && !_services.hasHelpPage("index")) {
        showMessage(localizedText("The pages of the help are not installed."));
    } else {
        showMessage(
            localizedText("Help could not be opened in a web browser. To read it here, press "
                          "Alt+Shift+F1."));
    }
}

void KXConfigAppDelegate::restartListener(std::size_t port) {
    stopListener();
    showDrops(0);
    _udpListener = UDPEcho::make(_services.runLoop, _services.hostResolver, _services.systemCalls);
    _udpListener->setDelegate(this);
    _udpListener->startServerOnPort(port);
}

void KXConfigAppDelegate::stopListener() {
    if (_udpListener != nullptr) {
        _udpListener->setDelegate(nullptr);
        _udpListener->stop();
        _udpListener.reset();
    }
}

void KXConfigAppDelegate::didStartListenerWithAddress(const Bytes& address) {
    appendMessage("\nUDP listener did start. ");
    std::uint32_t ip = 0;
    IPv6Octets ip6{};
    std::uint16_t port = 0;
    if (addressForData(address, ip, ip6, &port) == addressFamilyIPv4) {
        appendMessage("%@:%d", {stringForIP(ip), port});
    }
    enlargeReceiveBuffer();
    if (_services.systemCalls.enableBroadcast(_udpListener->nativeSocket()) != 0) {
        appendMessage("\nError setting SO_BROADCAST %s", {posixErrorText(errno)});
        return;
    }
    sendRequest(parameterRequestCommand, directedBroadcastAddress(), defaultUnitPort);
}

void KXConfigAppDelegate::echoDidStartWithAddress(UDPEcho& echo, const Bytes& address) {
    if (&echo != _udpListener.get()) {
        return;
    }
    try {
        didStartListenerWithAddress(address);
    } catch (const PlatformException& exception) {
        logToSystem(
            filledText("Exception during echo:didStartWithAddress: %@", {exception.reason()}));
    }
}

void KXConfigAppDelegate::echoDidReceiveError(UDPEcho& /*echo*/, const Error& error) {
    countDropsSoon();
    appendMessage("\nUDP did receive error.");
    appendMessage("\n  %@", {error.localizedDescription()});
}

void KXConfigAppDelegate::echoDidSendDataToAddress(UDPEcho& echo, const Bytes& /*data*/,
                                                   const Bytes& /*address*/) {
    if (&echo == _udpListener.get()) {
        appendMessage("\nUDP server did send data.");
    }
}

void KXConfigAppDelegate::echoDidFailToSendDataToAddressError(UDPEcho& /*echo*/,
                                                              const Bytes& /*data*/,
                                                              const Bytes& /*address*/,
                                                              const Error& error) {
    sendDidFail(error.localizedDescription());
}

void KXConfigAppDelegate::sendDidFail(const std::string& reason) {
    appendMessage("\nUDP failed to send data.");
    appendMessage("\n  %@", {reason});
    _sendFailure = reason;
}

void KXConfigAppDelegate::echoDidStopWithError(UDPEcho& /*echo*/, const Error& error) {
    appendMessage("\nUDP did stop with error.");
    appendMessage("\n  %@", {error.localizedDescription()});
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
