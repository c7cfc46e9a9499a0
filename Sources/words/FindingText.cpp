#include "words/FindingText.h"

#include "addresses/IPv4Address.h"
#include "support/LocalizedText.h"
#include "units/UnitRegistry.h"

#include <type_traits>

namespace kx {

namespace {

std::string text(const InterfaceFinding& finding) {
    switch (finding.fault) {
    case InterfaceFault::gone:
        return localizedText("The interface %@ is gone, so no broadcast was sent. Choose another "
                             "one, or bring it back.",
                             {finding.interface});
    case InterfaceFault::withoutLink:
        return localizedText("The interface %@ has no link. Is its cable plugged in, and the "
                             "device at the other end switched on?",
                             {finding.interface});
    case InterfaceFault::withoutBroadcast:
        return localizedText("The interface %@ reaches no unit by broadcast. Choose the one that "
                             "leads to the units.",
                             {finding.interface});
    case InterfaceFault::lostAddress:
        return localizedText("The interface %@ has lost the address that it had when it was "
                             "chosen. When it has one again, choose it again.",
                             {finding.interface});
    case InterfaceFault::outOfDate:
        break;
    }
    return localizedText("The address and mask of the interface %@ are out of date: they have "
                         "changed since it was chosen. Choose it again to take the new ones over.",
                         {finding.interface});
}

std::string text(const DroppedDatagrams& dropped) {
    return dropped.count == 1
               ? localizedText("The system dropped 1 datagram before it was read, so a unit may "
                               "be missing. Help says how to allow a larger buffer.")
               : localizedText("The system dropped %d datagrams before they were read, so units "
                               "may be missing. Help says how to allow a larger buffer.",
                               {static_cast<long long>(dropped.count)});
}

// The number stands in the sentence, so that each language writes it in its own way.
std::string text(const ForgottenUnits& /*units*/) {
    static_assert(UnitRegistry::defaultLimit == 1'048'576);
    return localizedText("More than 1,048,576 units have answered, so the list leaves out those "
                         "that were not heard for longest.");
}

std::string text(const TwoHostsOfOneSerial& hosts) {
    return localizedText("Two hosts answer as the unit %@: %@ and %@.",
                         {hosts.serial, hosts.firstHost, hosts.secondHost});
}

std::string text(const SerialsOfOneAddress& units) {
    const std::string address = stringForIP(units.address);
    const std::string& first = units.serials.front();
    const std::string& second = units.serials.at(1);
    const auto count = static_cast<long long>(units.serials.size());
    switch (units.serials.size()) {
    case 2:
        return localizedText("Two units say that their address is %@: %@ and %@. A command may "
                             "reach either.",
                             {address, first, second});
    case SerialsOfOneAddress::mostSerials:
        return localizedText("%d units or more say that their address is %@, among them %@ and "
                             "%@. A command may reach any of them.",
                             {count, address, first, second});
    default:
        return localizedText("%d units say that their address is %@, among them %@ and %@. A "
                             "command may reach any of them.",
                             {count, address, first, second});
    }
}

std::string text(const SenderOfAnotherAddress& answer) {
    return localizedText("The unit %@ says that its address is %@, but its answer came from %@.",
                         {answer.serial, stringForIP(answer.claimed), stringForIP(answer.sender)});
}

using NameOfLink = std::function<std::string(std::uint32_t link)>;

std::string nameIn(const NameOfLink& nameOfLink, std::uint32_t link) {
    const std::string name = nameOfLink ? nameOfLink(link) : std::string();
    return name.empty() ? std::to_string(link) : name;
}

std::string text(const UnitOnTwoInterfaces& unit, const NameOfLink& nameOfLink) {
    return localizedText(
        "The unit %@ is heard on two interfaces: %@ and %@. Commands leave by the "
        "one on which it was heard last.",
        {unit.serial, nameIn(nameOfLink, unit.firstLink), nameIn(nameOfLink, unit.secondLink)});
}

} // namespace

std::string textOfFinding(const Finding& finding, const NameOfLink& nameOfLink) {
    const auto textOf = [&nameOfLink](const auto& each) {
        if constexpr (std::is_same_v<decltype(each), const UnitOnTwoInterfaces&>) {
            return text(each, nameOfLink);
        } else {
            return text(each);
        }
    };
    return std::visit(textOf, finding);
}

} // namespace kx
