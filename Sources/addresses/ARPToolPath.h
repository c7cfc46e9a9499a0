// The place of the system's ARP tool, arp(8) of net-tools.

#pragma once

namespace kx {

inline constexpr auto arpToolPath = "/usr/sbin/arp";

} // namespace kx
