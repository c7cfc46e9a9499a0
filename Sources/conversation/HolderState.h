// Whether somebody holds an IPv4 address on a link, and who: the values of the question and of its
// answer.
//
// Values and a pure function; any thread. Addresses are in host byte order; hardware addresses are
// texts such as "02:4B:58:00:00:01".

#pragma once

#include "conversation/NeighbourTable.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kx {

struct AddressQuestion {
    std::uint32_t address = 0;
    std::uint32_t link = 0;

    friend bool operator==(const AddressQuestion&, const AddressQuestion&) = default;
};

enum class HolderState { free, held, unknown };

// What an entry of the neighbour table says, so long after something was sent to its address. An
// entry that somebody made by hand, or that nobody has confirmed lately, decides nothing, and
// neither does an early failure, which may be an old one.
HolderState holderStateOf(const std::optional<Neighbour>& entry,
                          std::chrono::milliseconds sinceAsked);

struct AddressHolders {
    struct Holder {
        std::string hardwareAddress;
        std::optional<std::string> serialNumber; // absent when it is no unit that answers
    };

    std::uint32_t address = 0;
    HolderState state = HolderState::unknown;
    std::vector<Holder> holders;
};

} // namespace kx
