#include "platform/linux/LinuxAuthorization.h"

#include "platform/linux/PolkitAuthorizationService.h"
#include "platform/linux/RootAuthorizationService.h"

#include <unistd.h>

namespace kx {

std::unique_ptr<AuthorizationService> makeAuthorizationService(RunLoop& loop, Waiting& waiting,
                                                               PersonAt person) {
    if (::geteuid() == 0) {
        return std::make_unique<RootAuthorizationService>(loop, waiting);
    }
    return std::make_unique<PolkitAuthorizationService>(loop, waiting,
                                                        person == PersonAt::desktopOrTerminal);
}

} // namespace kx
