#include "units/ParameterNumber.h"

#include "addresses/IPv4Address.h"
#include "support/TextEncoding.h"
#include "units/IdentityText.h"

#include <charconv>

namespace kx {

std::uint64_t numberOfSixBytes(std::optional<std::string_view> text) {
    std::uint64_t number = 0;
    for (std::size_t i = 0; text.has_value() && i + 1 < text->size(); i += 3) {
        std::uint8_t byte = 0;
        std::from_chars(text->data() + i, text->data() + i + 2, byte, 16);
        number = number << 8U | byte;
    }
    return number;
}

std::string textOfSixBytes(std::uint64_t number, std::string_view separator) {
    return hexStringForData(unitIDOfNumber(number), separator);
}

std::uint64_t numberOfUnitID(const UnitIDBytes& bytes) {
    std::uint64_t number = 0;
    for (const std::uint8_t byte : bytes) {
        number = number << 8U | byte;
    }
    return number;
}

UnitIDBytes unitIDOfNumber(std::uint64_t number) {
    UnitIDBytes bytes{};
    for (std::uint8_t& byte : bytes) {
        byte = static_cast<std::uint8_t>(number >> 40U);
        number <<= 8U;
    }
    return bytes;
}

std::uint64_t numberOfParameter(UnitParameter parameter, std::string_view text) {
    switch (descriptionOf(parameter).form) {
    case ValueForm::ipv4Address:
        return ipForString(text);
    case ValueForm::listeningPort:
    case ValueForm::anyPort:
        return static_cast<std::uint64_t>(integerValue(text));
    case ValueForm::hardwareAddress:
    case ValueForm::serialNumber:
    case ValueForm::unitID:
    case ValueForm::none:
        break;
    }
    return numberOfSixBytes(text);
}

std::string textOfParameter(UnitParameter parameter, std::uint64_t number) {
    switch (descriptionOf(parameter).form) {
    case ValueForm::ipv4Address:
        return stringForIP(static_cast<std::uint32_t>(number));
    case ValueForm::listeningPort:
    case ValueForm::anyPort:
        return std::to_string(number);
    case ValueForm::serialNumber:
        return textOfSixBytes(number, " ");
    case ValueForm::hardwareAddress:
    case ValueForm::unitID:
    case ValueForm::none:
        break;
    }
    return textOfSixBytes(number, ":");
}

} // namespace kx
