#include "conversation/DiscoveryFindings.h"

#include "conversation/SenderAddress.h"

#include <algorithm>
#include <utility>

namespace kx {

void DiscoveryFindings::begin(std::optional<InterfaceFinding> interface,
                              std::uint64_t forgottenUnits) {
    *this = {};
    _interface = std::move(interface);
    _forgottenBefore = forgottenUnits;
}

bool DiscoveryFindings::setForgottenUnits(std::uint64_t forgottenUnits) {
    if (_areUnitsForgotten || forgottenUnits == _forgottenBefore) {
        return false;
    }
    _areUnitsForgotten = true;
    return true;
}

namespace {

AnswerOrigin answerOrigin(const DatagramOrigin& origin) {
    return {.sender = addressOfSender(origin), .link = origin.link};
}

} // namespace

bool DiscoveryFindings::unitDidTell(const UnitRecord& record, const DatagramOrigin& origin) {
    const std::size_t before = _contradictions.size();
    if (before >= mostContradictions) {
        return false;
    }
    _witness.unitDidTell(record, answerOrigin(origin), _contradictions);
    return _contradictions.size() != before;
}

bool DiscoveryFindings::replyDidCome(std::string_view serial, const DatagramOrigin& origin) {
    const std::size_t before = _contradictions.size();
    if (before >= mostContradictions) {
        return false;
    }
    _witness.replyDidCome(serial, answerOrigin(origin), _contradictions);
    return _contradictions.size() != before;
}

std::vector<Finding> DiscoveryFindings::all() const {
    std::vector<Finding> findings = _contradictions;
    if (_dropped != 0) {
        findings.emplace_back(DroppedDatagrams{_dropped});
    }
    if (_areUnitsForgotten) {
        findings.emplace_back(ForgottenUnits());
    }
    if (_interface.has_value()) {
        findings.emplace_back(*_interface);
    }
    std::ranges::stable_sort(findings, {}, [](const Finding& each) { return each.index(); });
    return findings;
}

std::optional<Finding> DiscoveryFindings::weightiest() const {
    auto findings = all();
    return findings.empty() ? std::nullopt : std::optional(std::move(findings.front()));
}

} // namespace kx
