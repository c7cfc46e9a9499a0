// The parsers of typed IPv4 addresses and masks.

#include "FuzzInput.h"
#include "addresses/IPv4Address.h"

#include <string>

using namespace kx;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(textOfInput(data, size));

    const std::uint32_t address = ipForString(text);
    requireInvariant(ipForString(stringForIP(address)) == address,
                     "an address's own text parses back");

    const auto prefix = prefixForMaskStr(text);
    requireInvariant(prefix.has_value() == (address != 0),
                     "a mask that parses has a prefix length");
    requireInvariant(stringForNetNumber(address, address).ends_with("/" + prefix.value_or("")) ||
                         address == 0,
                     "both forms of a prefix length agree");

    for (const auto segment : {ipSegmentFromBuf, ipSegment1FromBuf}) {
        std::int32_t position = 0;
        std::int32_t consumed = 0;
        segment(text.c_str(), position, consumed);
        requireInvariant(position == consumed && consumed >= 0 && consumed <= 10,
                         "a segment advances by what it consumes");
    }
    return 0;
}
