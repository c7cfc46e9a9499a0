#include "support/ByteRange.h"

#include "support/TextEncoding.h"

namespace kx {

namespace {

bool rangeFits(std::size_t location, std::size_t length, std::size_t available) {
    return location <= available && length <= available - location;
}

} // namespace

RangeFailure::RangeFailure(std::size_t location, std::size_t length, std::size_t available)
    : PlatformException("range {" + std::to_string(location) + ", " + std::to_string(length) +
                        "} exceeds data length " + std::to_string(available)) {}

ByteView subrange(ByteView data, std::size_t location, std::size_t length) {
    if (!rangeFits(location, length, data.size())) {
        throw RangeFailure(location, length, data.size());
    }
    return data.subspan(location, length);
}

std::optional<std::string> stringForDataSubrange(ByteView data, std::size_t location,
                                                 std::size_t length) {
    if (!rangeFits(location, length, data.size())) {
        return std::nullopt;
    }
    return textFromUTF8(data.subspan(location, length));
}

} // namespace kx
