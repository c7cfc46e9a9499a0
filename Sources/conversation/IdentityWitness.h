// Compares the answers of units with each other and with their senders, and finds those that
// contradict each other.
//
// Nothing is refused: any host that reaches the port can answer as any unit, and nothing in an
// answer proves who sent it. An honest unit changes what it tells only after a command, so a
// front announces each command with expectChange(); what the unit told before is then forgotten.
//
// A value type; any thread, one at a time. It remembers the first 131,072 serial numbers, about 10
// MB of memory, and ignores the ones after them, because anybody can invent serial numbers. Every
// contradiction is told once.

#pragma once

#include "conversation/Finding.h"
#include "support/KeyedEntries.h"
#include "units/UnitRecord.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace kx {

// Where an answer came from: the sender's address in host byte order, and the index of the
// interface. 0 stands for what is not known.
struct AnswerOrigin {
    std::uint32_t sender = 0;
    std::uint32_t link = 0;
};

class IdentityWitness {
public:
    static constexpr std::size_t mostSerials = 131'072;

    // A unit told its parameters. Appends what this answer contradicts to `findings`, or adds its
    // serial number to those of one address there; nobody else may change `findings` in between. An
    // answer without a serial number contradicts nothing.
    void unitDidTell(const UnitRecord& record, const AnswerOrigin& origin,
                     std::vector<Finding>& findings);

    // A reply of any kind came in the name of this serial number: parameters, "ok" or another text.
    // Appends what it contradicts to `findings`. Until the unit tells its parameters, a reply
    // without them stands for it; then it no longer counts, because a unit may accept a command at
    // its old address.
    void replyDidCome(std::string_view serial, const AnswerOrigin& origin,
                      std::vector<Finding>& findings);

    // The unit of this serial number, or any unit, may answer differently from now on.
    void expectChange(std::string_view serial);
    void expectChanges() { *this = {}; }

private:
    // The first answer under a serial number. 0 stands for what was not told.
    struct Host {
        std::uint64_t key() const { return serial; }

        std::uint64_t serial = 0;
        std::uint64_t hardwareAddress = 0;
        std::uint32_t sender = 0;
        std::uint32_t claimedAddress = 0;
        std::uint32_t link = 0;
        bool hasToldParameters = false;
        bool isToldAsTwo = false;         // as two hosts of this serial number
        bool isToldOnTwoLinks = false;    // as heard on two interfaces
        bool isToldAsOtherSender = false; // as an answer from another address
    };
    struct Claim {
        std::uint64_t key() const { return address; }

        std::uint64_t serial = 0; // the first that claimed the address
        std::uint32_t address = 0;
        std::uint32_t finding = notTold; // where it is told, once another claims it too
    };
    static constexpr std::uint32_t notTold = 0xFFFFFFFF;

    Host* hostOf(const Host& now);
    void compareHosts(std::string_view serial, const Host& now, Host& first,
                      std::vector<Finding>& findings);
    void compareClaims(std::string_view serial, std::uint64_t key, std::uint32_t address,
                       std::vector<Finding>& findings);

    KeyedEntries<Host> _hosts;   // by serial number
    KeyedEntries<Claim> _claims; // by claimed address
};

} // namespace kx
