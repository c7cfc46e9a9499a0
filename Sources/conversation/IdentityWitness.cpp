#include "conversation/IdentityWitness.h"

#include "addresses/IPv4Address.h"
#include "units/ParameterNumber.h"

#include <algorithm>
#include <optional>
#include <string>

namespace kx {

namespace {

// 0 for an absent address.
std::uint32_t addressOfText(std::optional<std::string_view> text) {
    return text.has_value() ? ipForString(*text) : 0;
}

bool differ(std::uint64_t left, std::uint64_t right) {
    return left != 0 && right != 0 && left != right;
}

} // namespace

void IdentityWitness::unitDidTell(const UnitRecord& record, const AnswerOrigin& origin,
                                  std::vector<Finding>& findings) {
    const auto serial = record.value(UnitParameter::serialNumber);
    if (!serial.has_value()) {
        return;
    }
    const std::uint64_t key = numberOfSixBytes(*serial);
    const Host now{.serial = key,
                   .hardwareAddress =
                       numberOfSixBytes(record.value(UnitParameter::internalMACAddress)),
                   .sender = origin.sender,
                   .claimedAddress = addressOfText(record.value(UnitParameter::internalIPAddress)),
                   .link = origin.link,
                   .hasToldParameters = true};
    Host* const first = hostOf(now);
    if (first == nullptr) {
        return;
    }
    if (!first->hasToldParameters) {
        *first = now;
    }
    compareHosts(*serial, now, *first, findings);
    compareClaims(*serial, key, now.claimedAddress, findings);
}

void IdentityWitness::replyDidCome(std::string_view serial, const AnswerOrigin& origin,
                                   std::vector<Finding>& findings) {
    const Host now{
        .serial = numberOfSixBytes(serial), .sender = origin.sender, .link = origin.link};
    if (Host* const first = hostOf(now)) {
        compareHosts(serial, now, *first, findings);
    }
}

// Null for one serial number too many.
IdentityWitness::Host* IdentityWitness::hostOf(const Host& now) {
    Host* const known = _hosts.find(now.serial);
    if (known != nullptr || _hosts.size() >= mostSerials) {
        return known;
    }
    return &_hosts.add(now);
}

void IdentityWitness::compareHosts(std::string_view serial, const Host& now, Host& first,
                                   std::vector<Finding>& findings) {
    const bool sendersDiffer = differ(first.sender, now.sender);
    if (!first.isToldAsTwo &&
        (sendersDiffer || differ(first.hardwareAddress, now.hardwareAddress))) {
        first.isToldAsTwo = true;
        const auto nameOf = [sendersDiffer](const Host& host) {
            return sendersDiffer ? stringForIP(host.sender)
                                 : textOfSixBytes(host.hardwareAddress, ":");
        };
        findings.push_back(TwoHostsOfOneSerial{std::string(serial), nameOf(first), nameOf(now)});
    }
    if (!first.isToldOnTwoLinks && differ(first.link, now.link)) {
        first.isToldOnTwoLinks = true;
        findings.push_back(UnitOnTwoInterfaces{std::string(serial), first.link, now.link});
    }
    if (!first.isToldAsOtherSender && differ(now.claimedAddress, now.sender)) {
        first.isToldAsOtherSender = true;
        findings.push_back(
            SenderOfAnotherAddress{std::string(serial), now.claimedAddress, now.sender});
    }
}

void IdentityWitness::compareClaims(std::string_view serial, std::uint64_t key,
                                    std::uint32_t address, std::vector<Finding>& findings) {
    if (address == 0) {
        return;
    }
    Claim* const claim = _claims.find(address);
    if (claim == nullptr) {
        if (_claims.size() < mostSerials) {
            _claims.add({.serial = key, .address = address});
        }
        return;
    }
    if (claim->serial == key) {
        return;
    }
    if (claim->finding == notTold) {
        claim->finding = static_cast<std::uint32_t>(findings.size());
        findings.push_back(SerialsOfOneAddress{
            address, {textOfSixBytes(claim->serial, " "), std::string(serial)}});
        return;
    }
    auto& serials = std::get<SerialsOfOneAddress>(findings.at(claim->finding)).serials;
    if (serials.size() < SerialsOfOneAddress::mostSerials &&
        std::ranges::find(serials, serial) == serials.end()) {
        serials.emplace_back(serial);
    }
}

// Of a claim that has been told, any unit may be the one that gives it up.
void IdentityWitness::expectChange(std::string_view serial) {
    const std::uint64_t key = numberOfSixBytes(serial);
    const Host* const host = _hosts.find(key);
    if (host == nullptr) {
        return;
    }
    const Claim* const claim = _claims.find(host->claimedAddress);
    if (claim != nullptr && (claim->serial == key || claim->finding != notTold)) {
        _claims.remove(claim->address);
    }
    _hosts.remove(key);
}

} // namespace kx
