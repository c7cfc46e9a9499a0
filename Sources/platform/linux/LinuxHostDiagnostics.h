// What a Linux host tells about itself without rights: its routes by rtnetlink, the rest from the
// files of /proc, and the firewall that is switched on from the files of the firewall.
//
// Threading: the main thread only.

#pragma once

#include "conversation/HostDiagnostics.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

class LinuxHostDiagnostics final : public HostDiagnostics {
public:
    // The folders are those of the system; tests give others.
    explicit LinuxHostDiagnostics(std::filesystem::path proc = "/proc",
                                  std::filesystem::path etc = "/etc");

    std::optional<HostRoute> route(std::uint32_t address) override;
    std::optional<HostCounters> counters() override;
    std::optional<int> reversePathFilter(const std::string& interface) override;

    // The program is told where the process belongs to this user, or this process may look into it;
    // otherwise the user alone.
    std::optional<PortOwner> ownerOfPort(std::uint16_t port) override;

    // firewalld is a process. ufw is none: it runs when its configuration says that it is enabled.
    std::vector<FirewallService> firewallServices() override;

private:
    std::filesystem::path _proc;
    std::filesystem::path _etc;
};

// The value of a counter in the form of /proc/net/snmp and netstat: a line of names, and a line of
// numbers in the same order, both behind the name of the group. Absent when there is none. Pure.
std::optional<std::uint64_t> counterIn(std::string_view text, std::string_view group,
                                       std::string_view name);

// A socket in the form of /proc/net/udp that is bound to a port.
struct BoundSocket {
    std::uint32_t user = 0;
    std::uint64_t inode = 0;
};

// The first one bound to the port. Pure.
std::optional<BoundSocket> socketOnPort(std::string_view text, std::uint16_t port);

} // namespace kx
