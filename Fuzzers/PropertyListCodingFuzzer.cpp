// Stored table entries, as anybody may have written them.

#include "FuzzInput.h"
#include "support/PropertyListCoding.h"

#include <algorithm>

using namespace kx;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    PropertyListDecoder decoder({data, size});
    PropertyListEncoder encoder;
    while (const auto object = decoder.decodeObject()) {
        promise(encoder.encodeObject(*object), "what could be read can be written");
    }
    const Bytes& written = encoder.bytes();
    promise(written.size() <= size && std::equal(written.begin(), written.end(), data),
            "there is one way to write an object");
    return 0;
}
