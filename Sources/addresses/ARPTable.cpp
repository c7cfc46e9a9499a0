#include "addresses/ARPTable.h"

#include "System Configuration/SystemConfiguration.h"
#include "addresses/ARPToolPath.h"
#include "addresses/HardwareAddress.h"
#include "addresses/IPv4Address.h"
#include "support/PlatformException.h"
#include "support/TaskSupport.h"

#include <span>

namespace kx {

namespace {

constexpr std::string_view mark = "at "; // an address follows this mark

std::optional<std::string> toolOutput(const std::string& argument) {
    std::optional<std::string> output;
    try {
        TaskSupport::doShortTaskArgumentsInputShortOutput(arpToolPath, {argument}, std::nullopt,
                                                          &output, longestLookup);
    } catch (const PlatformException&) { // a system without the tool knows no address
    }
    return output;
}

} // namespace

std::optional<std::string> hwAddressStringForIPString(const std::optional<std::string>& ipString) {
    if (!ipString.has_value() || !networkIsReady()) {
        return std::nullopt;
    }
    const auto output = toolOutput(*ipString);
    return output.has_value() ? hwAddressStringInToolOutput(*output) : std::nullopt;
}

std::int32_t hwAddressForIP(std::uint32_t address, std::uint8_t* octets, std::uint8_t& length) {
    if (length < hardwareAddressLength) {
        return -1;
    }
    const auto text = hwAddressStringForIPString(stringForIP(address));
    if (!text.has_value() || !eaForString(*text, std::span<std::uint8_t, hardwareAddressLength>(
                                                     octets, hardwareAddressLength))) {
        return -1;
    }
    length = hardwareAddressLength;
    return 0;
}

std::optional<std::string> hwAddressStringInToolOutput(std::string_view output) {
    const auto found = output.find(mark);
    if (found == std::string_view::npos) {
        return std::nullopt;
    }
    HardwareAddress address;
    if (!address.setStringValue(output.substr(found + mark.size()))) {
        return std::nullopt;
    }
    return address.stringValue();
}

} // namespace kx
