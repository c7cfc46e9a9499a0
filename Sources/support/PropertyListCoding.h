// Property-list values as bytes: objects one after the other, read back in the order written.
//
// The form of an object, where LENGTH, COUNT and INTEGER are decimal without leading zeros:
//
//   text        t LENGTH : the text's bytes in UTF-8
//   integer     i INTEGER ;
//   list        l COUNT : the elements
//   dictionary  d COUNT : for each key, in strictly ascending order: the key as a text, the value
//
// (without the blanks). So {"a": [1, "b"]} is "d1:t1:al2:i1;t1:b". Every value has exactly one
// form: bytes that are read and written again stay the same.
//
// Both classes are plain values without shared state; use each from one thread at a time.

#pragma once

#include "support/ByteRange.h"
#include "support/PropertyListValue.h"

#include <optional>

namespace kx {

// The greatest depth of lists and dictionaries that lie in each other. The limit keeps foreign
// bytes from using up the stack.
inline constexpr int deepestPropertyListNesting = 100;

class PropertyListEncoder {
public:
    // Appends one object. False, with nothing written, when it is nested deeper than the limit.
    // Texts and keys must be valid UTF-8, as everywhere.
    bool encodeObject(const PropertyListValue& object);

    // Everything written so far.
    const Bytes& bytes() const { return _bytes; }

private:
    Bytes _bytes;
};

// Reads any bytes without harm, at a cost proportional to their number.
class PropertyListDecoder {
public:
    // Looks into `bytes`, which must outlive the decoder.
    explicit PropertyListDecoder(ByteView bytes)
        : _rest(bytes) {}

    // The next object. Absent at the end, and when the bytes there are not the form of an object;
    // the position then stays where it was.
    std::optional<PropertyListValue> decodeObject();

    // Whether all bytes have been read.
    bool isAtEnd() const { return _rest.empty(); }

private:
    ByteView _rest;
};

} // namespace kx
