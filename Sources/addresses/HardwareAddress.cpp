#include "addresses/HardwareAddress.h"

#include "support/LocalizedText.h"
#include "support/SystemLog.h"
#include "support/TextFormat.h"

#include <algorithm>
#include <memory_resource>
#include <new>

namespace kx {

namespace {

std::shared_ptr<HardwareAddress> newHardwareAddress() {
    try {
        return std::allocate_shared<HardwareAddress>(
            std::pmr::polymorphic_allocator<HardwareAddress>());
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void describeError(std::optional<std::string>* errorDescription, std::string_view message) {
    if (errorDescription != nullptr) {
        *errorDescription = message;
    }
}

// Reads groups into `address` until a separator is missing or all are read. Returns whether all
// were read.
bool parseGroups(const ParseCursor& cursor, HardwareAddress& address) {
    ParsePosition position = startOfCursor(cursor);
    for (std::size_t i = 0; i < address.length(); ++i) {
        const bool isNextGroup =
            i == 0 || skipByte(cursor, position, ':') || skipByte(cursor, position, '-');
        if (!isNextGroup) {
            return false;
        }
        address.bytes()[i] = static_cast<std::uint8_t>(intHexValue(cursor, position) & 0xFFU);
    }
    return true;
}

} // namespace

std::string HardwareAddress::stringValue() const {
    return HardwareAddressFormatter::sharedInstance().stringForObjectValue(this).value_or("");
}

bool HardwareAddress::setStringValue(std::string_view text) {
    std::shared_ptr<HardwareAddress> parsed;
    std::optional<std::string> errorDescription;
    if (!HardwareAddressFormatter::sharedInstance().getObjectValueForStringErrorDescription(
            parsed, text, &errorDescription)) {
        logToSystem(filledText("%@", {errorDescription}));
        return false;
    }
    parsed->getHardwareAddress(_hardwareAddress);
    return true;
}

HardwareAddress HardwareAddress::copy() const {
    HardwareAddress result;
    std::copy_n(bytes(), length(), result.bytes());
    return result;
}

const HardwareAddressFormatter& HardwareAddressFormatter::sharedInstance() {
    static const auto& shared = *new HardwareAddressFormatter;
    return shared;
}

std::optional<std::string>
HardwareAddressFormatter::stringForObjectValue(const FormattedObject* object) const {
    const auto* address = dynamic_cast<const HardwareAddress*>(object);
    if (address == nullptr) {
        return std::nullopt;
    }
    return stringForEA(std::span<const std::uint8_t, hardwareAddressLength>(address->bytes(),
                                                                            hardwareAddressLength));
}

std::optional<AttributedText>
HardwareAddressFormatter::attributedStringForObjectValueWithDefaultAttributes(
    const FormattedObject* object, const PropertyDictionary& attributes) const {
    const auto text = stringForObjectValue(object);
    if (!text.has_value()) {
        return std::nullopt;
    }
    return AttributedText{*text, attributes};
}

bool HardwareAddressFormatter::getObjectValueForStringErrorDescription(
    std::shared_ptr<HardwareAddress>& object, std::string_view text,
    std::optional<std::string>* errorDescription) const {
    if (errorDescription != nullptr) {
        errorDescription->reset();
    }
    if (text.empty()) {
        describeError(errorDescription, localizedText("HardwareAddressFormatter: inString is nil"));
        return false;
    }
    auto address = newHardwareAddress();
    if (address == nullptr) {
        describeError(errorDescription,
                      localizedText("HardwareAddressFormatter: object could not be allocated"));
        return false;
    }
    const bool isParsed = parseGroups(cursorForText(text), *address);
    if (!isParsed) {
        describeError(errorDescription,
                      localizedText("HardwareAddressFormatter: invalid Ethernet address"));
        logToSystem(filledText("Input: %@", {text}));
    }
    object = std::move(address);
    return isParsed;
}

} // namespace kx
