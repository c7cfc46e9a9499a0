// The output of the ARP tool.

#include "FuzzInput.h"
#include "QuietLog.h"
#include "addresses/ARPTable.h"
#include "addresses/HardwareAddress.h"

#include <string>

using namespace kx;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    keepSystemLogQuiet();
    const std::string output(textOfInput(data, size));

    const auto found = hwAddressStringInToolOutput(output);
    requireInvariant(!found || output.find("at ") != std::string::npos,
                     "an address stands behind \"at \"");
    HardwareAddress address;
    requireInvariant(!found || (address.setStringValue(*found) && address.stringValue() == *found),
                     "what is found is an address's own text");
    requireInvariant(!found || hwAddressStringInToolOutput("at " + *found) == found,
                     "and is found again in a sentence of its own");
    return 0;
}
