// The parsers of typed hardware addresses.

#include "FuzzInput.h"
#include "QuietLog.h"
#include "addresses/HardwareAddress.h"

#include <array>
#include <string>

using namespace kx;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    keepSystemLogQuiet();
    const std::string text(textOfInput(data, size));

    HardwareAddress::Octets octets{};
    const bool isParsed = eaForString(text, octets);
    HardwareAddress address;
    requireInvariant(address.setStringValue(text) == isParsed, "both parsers take the same texts");
    if (isParsed) {
        requireInvariant(address.stringValue() == stringForEA(octets), "and read the same octets");
        HardwareAddress again;
        requireInvariant(again.setStringValue(address.stringValue()),
                         "an address's own text parses");
        requireInvariant(again.stringValue() == address.stringValue(), "and is the same address");
    }

    std::array<std::uint8_t, longestHardwareAddress> groups{};
    std::size_t count = 0;
    const bool isGrouped = ha16ForString(text, groups, count);
    requireInvariant(isGrouped ? count == 6 || count == 8 : count == 0,
                     "there are six groups, eight, or none that count");
    if (isGrouped) {
        std::array<std::uint8_t, longestHardwareAddress> again{};
        std::size_t countAgain = 0;
        requireInvariant(ha16ForString(stringForHA16(groups, count), again, countAgain) &&
                             countAgain == count &&
                             stringForHA16(again, count) == stringForHA16(groups, count),
                         "the groups' own text parses back");
    }
    return 0;
}
