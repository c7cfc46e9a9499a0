// Coded property-list values, and the tables that are read from them.

#include "FuzzInput.h"
#include "support/PropertyListCoding.h"
#include "tables/GXArrayTable.h"
#include "tables/GXDictionaryTable.h"
#include "tables/GXIndexTable.h"

#include <algorithm>

using namespace kx;

namespace {

template<class Table>
void readTable(ByteView bytes) {
    Table table;
    PropertyListDecoder decoder(bytes);
    if (!table.initWithCoder(decoder, GXStateEntry::entryFromDictionary)) {
        requireInvariant(table.description() == Table().description(),
                         "a table not read stays empty");
        return;
    }
    PropertyListEncoder encoder;
    requireInvariant(table.encodeWithCoder(encoder), "a table that was read can be written");
    requireInvariant(std::equal(encoder.bytes().begin(), encoder.bytes().end(), bytes.begin()),
                     "a table's own bytes are the bytes read");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ByteView bytes(data, size);
    PropertyListDecoder decoder(bytes);
    PropertyListEncoder encoder;
    while (const auto object = decoder.decodeObject()) {
        requireInvariant(encoder.encodeObject(*object), "what was read can be written");
    }
    requireInvariant(encoder.bytes().size() <= size &&
                         std::equal(encoder.bytes().begin(), encoder.bytes().end(), bytes.begin()),
                     "every value has one form");
    requireInvariant(!decoder.isAtEnd() || encoder.bytes().size() == size, "the end is the end");

    readTable<GXArrayTable>(bytes);
    readTable<GXDictionaryTable>(bytes);
    readTable<GXIndexTable>(bytes);
    return 0;
}
