// The one family of exceptions that the system throws on purpose.
//
// They stand for broken invariants of data: a byte range beyond its buffer, a property that an
// object does not have. Every other failure travels as a value (see Error.h) or, where a caller
// broke a contract, ends the process (see Require.h). Guards at module edges catch
// PlatformException and nothing else, so that a programming error is never mistaken for bad data.

#pragma once

#include <stdexcept>
#include <string>

namespace kx {

class PlatformException : public std::runtime_error {
public:
    explicit PlatformException(const std::string& reason)
        : std::runtime_error(reason) {}

    // The reason in words, as the guards write it to the system log.
    std::string reason() const { return what(); }
};

} // namespace kx
