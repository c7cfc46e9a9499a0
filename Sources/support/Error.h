// Errors that travel as values: their source (domain), the event (code), and in rare cases more
// (user info). A value type; any thread, one at a time.

#pragma once

#include "support/PropertyListValue.h"

#include <optional>
#include <string>
#include <string_view>

namespace kx {

// Codes are values of errno(3).
inline constexpr std::string_view NSPOSIXErrorDomain = "NSPOSIXErrorDomain";

// Codes are the two below. They are errors of name resolution.
inline constexpr std::string_view kCFErrorDomainCFNetwork = "kCFErrorDomainCFNetwork";
inline constexpr int kCFHostErrorHostNotFound = 1; // resolved, but to no usable IPv4 address
inline constexpr int kCFHostErrorUnknown = 2;      // the resolver failed

// User info key: the resolver's own code (EAI_... of getaddrinfo(3)), an integer.
inline constexpr std::string_view kCFGetAddrInfoFailureKey = "kCFGetAddrInfoFailureKey";

struct Error {
    std::string domain;
    int code = 0;
    std::optional<PropertyDictionary> userInfo;

    // A description for the user: the operating system's own text for an errno value, a localized
    // sentence for each of the resolution codes.
    std::string localizedDescription() const;

    friend bool operator==(const Error&, const Error&) = default;
};

// The error for a value of errno(3), without user info.
Error posixError(int code);

// The operating system's text for a value of errno(3).
std::string posixErrorText(int code);

} // namespace kx
