#include "support/Error.h"

#include "support/LocalizedText.h"
#include "support/TextFormat.h"

#include <system_error>

namespace kx {

std::string Error::localizedDescription() const {
    if (domain == NSPOSIXErrorDomain) {
        return posixErrorText(code);
    }
    if (domain == kCFErrorDomainCFNetwork && code == kCFHostErrorHostNotFound) {
        return localizedText("The host has no IPv4 address that can be reached.");
    }
    if (domain == kCFErrorDomainCFNetwork && code == kCFHostErrorUnknown) {
        return localizedText("The host name could not be resolved.");
    }
    return filledText(localizedText("The operation could not be completed (%@ error %d)."),
                      {domain, code});
}

Error posixError(int code) {
    return Error{std::string(NSPOSIXErrorDomain), code, std::nullopt};
}

std::string posixErrorText(int code) {
    return std::generic_category().message(code);
}

} // namespace kx
