// Units whose values are hard to keep in a table: unit IDs that look like numbers, dates and
// formulas, that break lines, that are no text; serial numbers and addresses that look like
// numbers.

#pragma once

#include "addresses/IPv4Address.h"
#include "conversation/HeardUnits.h"
#include "units/IdentityText.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

using namespace std::string_view_literals;

class HostileUnits {
public:
    // The same units on every machine, in the order of their serial numbers.
    static std::vector<HeardUnit> make(std::size_t count) {
        HostileUnits hostile;
        std::vector<HeardUnit> units;
        for (std::size_t i = 0; i < count; ++i) {
            units.push_back(hostile.unit(i, count));
        }
        return units;
    }

private:
    HeardUnit unit(std::size_t number, std::size_t count) {
        HeardUnit unit;
        unit.record.setValue(UnitParameter::serialNumber, textOf(serial(number, count), " "));
        unit.unitIDBytes = unitID(number);
        if (const auto text = unitIDforData(*unit.unitIDBytes)) {
            unit.record.setValue(UnitParameter::unitID, *text);
        }
        unit.record.setValue(UnitParameter::internalMACAddress, textOf(octets(), ":"));
        unit.record.setValue(UnitParameter::destinationMACAddress, textOf(octets(), ":"));
        // Different addresses, as units have them.
        const auto place = static_cast<std::uint32_t>(number);
        unit.record.setValue(UnitParameter::internalIPAddress,
                             stringForIP((place % 2 == 0 ? 0x0A000000U : 0xC0A80000U) + place));
        unit.record.setValue(UnitParameter::destinationIPAddress,
                             stringForIP(static_cast<std::uint32_t>(_random()) & 0x3FFFFFFFU));
        unit.record.setValue(UnitParameter::destinationPortNumber,
                             std::to_string(3520 + number % 4));
        unit.record.setValue(UnitParameter::devicePortNumber, std::to_string(_random() % 65536));
        unit.sender = 0xC0A80000U + place;
        return unit;
    }

    static std::string textOf(const UnitIDBytes& bytes, std::string_view separator) {
        return hexStringForData(bytes, separator);
    }

    // Some look like twelve digits, some like a power of ten.
    static UnitIDBytes serial(std::size_t number, std::size_t count) {
        const auto digits = [](std::size_t value) {
            return static_cast<std::uint8_t>(value / 10 % 10 << 4U | value % 10);
        };
        const bool isPower = number * 2 > count;
        return {static_cast<std::uint8_t>(isPower ? 0x47 : 0),
                digits(number / 1'000'000),
                static_cast<std::uint8_t>(isPower ? 0xE0 : 0),
                digits(number / 10'000),
                digits(number / 100),
                digits(number)};
    }

    UnitIDBytes octets() {
        UnitIDBytes bytes{};
        const bool isDecimal = _random() % 2 == 0;
        for (std::uint8_t& byte : bytes) {
            const auto value = static_cast<std::uint8_t>(_random());
            byte =
                isDecimal ? static_cast<std::uint8_t>((value % 100 / 10 << 4) | value % 10) : value;
        }
        bytes[0] &= 0xFCU; // of one unit
        return bytes;
    }

    UnitIDBytes unitID(std::size_t number) {
        if (number < 256) {
            return {0, 0, 0, 0, 0, static_cast<std::uint8_t>(number)};
        }
        if (number < 256 + planned.size()) {
            return bytesOf(planned.at(number - 256));
        }
        switch (number % 4) {
        case 0:
            return octets();
        case 1:
            return bytesOf(mixed(letters));
        case 2:
            return bytesOf(mixed(names));
        default:
            return bytesOf(mixed(signs));
        }
    }

    static UnitIDBytes bytesOf(std::string_view text) {
        UnitIDBytes bytes{};
        std::ranges::copy(text.substr(0, bytes.size()), bytes.begin());
        return bytes;
    }

    std::string mixed(std::string_view alphabet) {
        std::string text;
        for (std::size_t length = 1 + _random() % 6; text.size() < length;) {
            text += alphabet[_random() % alphabet.size()];
        }
        return text;
    }

    static constexpr std::string_view letters = "0123456789.,:/-+eE% $()JanFMrTUWHtrue";
    static constexpr std::string_view names =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz019 -.";
    static constexpr std::string_view signs = "=+-@'\"\t\r\n,;\0 #!?&\\|\xC3\xA4\xE2\x82\xAC\xFF"sv;
    static constexpr std::array<std::string_view, 60> planned{
        "000123",   "1E5",   "1E+5",   "12E45", "TRUE",   "true",         "False",   "WAHR",
        "falsch",   "vrai",  "=1+1",   "=A1",   "+1",     "-1",           "@A1",     "'1",
        "''1",      " 1",    "1 ",     " A",    "A ",     "      ",       "Jan-1",   "1-Jan",
        "MAR1",     "Sept2", "5/5",    "1:30",  "12:00",  "5%",           "$5",      "\u20AC5",
        "5 \u20AC", "EUR5",  "CHF 5",  "R5",    "\u00E4", "\u65E5\u672C", "A\u0308", "#REF!",
        "######",   "#N/A",  "Err:50", "\"",    "\"\"",   "\"a\"",        ",",       ";",
        "\t",       "a\nb",  "a\r\nb", "a\rb",  "1,234",  "1.234",        "1'234",   "(5)",
        "INF",      "NaN",   "0x1F",   "1_000"};

    std::mt19937 _random{20'261'122};
};

} // namespace kx
