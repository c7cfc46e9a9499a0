// The kernel's neighbour table, asked for one entry at a time (rtnetlink). Needs no rights,
// except for taking an entry out.
//
// Threading: any thread, one at a time. Each question is answered at once: the kernel answers
// inside the call that asks it.

#pragma once

#include "conversation/NeighbourTable.h"

#include <memory>

struct nl_sock;

namespace kx {

class LinuxNeighbourTable final : public NeighbourTable {
public:
    LinuxNeighbourTable();
    ~LinuxNeighbourTable() override;
    LinuxNeighbourTable(const LinuxNeighbourTable&) = delete;
    LinuxNeighbourTable& operator=(const LinuxNeighbourTable&) = delete;

    std::optional<Neighbour> entry(std::uint32_t address, std::uint32_t link) override;
    std::vector<std::uint32_t> knownAddresses(std::uint32_t link) override;
    std::size_t entriesInUse() override;
    void forget(std::uint32_t address, std::uint32_t link) override;

private:
    struct SocketRelease {
        void operator()(nl_sock* socket) const;
    };

    std::unique_ptr<nl_sock, SocketRelease> _socket; // null when the system gave none
};

} // namespace kx
