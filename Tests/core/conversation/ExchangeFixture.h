// An exchange on doubles, with units whose answers the test delivers by hand.

#pragma once

#include "conversation/UnitExchange.h"
#include "core/SentDatagrams.h"
#include "core/UnitReplies.h"
#include "doubles/ManualRunLoop.h"
#include "doubles/RecordedSystemLog.h"
#include "doubles/ScriptedHostResolver.h"
#include "doubles/ScriptedReceiveBufferControl.h"
#include "doubles/ScriptedSystemCalls.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <string>
#include <vector>

namespace kx {

using namespace std::chrono_literals;

class ExchangeTest : public testing::Test {
protected:
    using Operation = ScriptedSystemCalls::Operation;
    using Lines = std::vector<std::string>;

    static constexpr std::uint32_t ownAddress = 0xC0A80101U;  // 192.168.1.1
    static constexpr std::uint32_t unitAddress = 0xC0A8010AU; // 192.168.1.10
    static constexpr std::uint32_t link = 3;
    static constexpr UnitTarget everybody{.address = 0xC0A801FFU, .port = 3520, .link = link};
    static constexpr UnitTarget unitTarget{.address = unitAddress, .port = 10000, .link = link};

    ExchangeTest() {
        systemCalls.addLink("kx0", link);
        exchange.setOwnAddresses({ownAddress});
        constexpr std::array<std::uint16_t, 1> ports{3520};
        EXPECT_EQ(exchange.open(ports), std::nullopt);
    }

    void receive(const Bytes& datagram, std::uint32_t sender = unitAddress,
                 std::uint16_t port = 3520) {
        systemCalls.queueDatagram(datagram, dataForAddress(sender, port), link);
        runLoop.makeReadable(systemCalls.lastDescriptor());
    }

    // What was sent since the last call of this, as "192.168.1.10:10000 ^^IdX".
    Lines sent() {
        const Lines all = sentThrough(systemCalls);
        Lines fresh(all.begin() + static_cast<std::ptrdiff_t>(_seen), all.end());
        _seen = all.size();
        return fresh;
    }

    // The unit that the exchange makes of a reply.
    HeardUnit heardUnit(const SampleUnit& unit) {
        class Keeper : public UnitExchange::Listener {
        public:
            using Listener::Listener;
            void unitDidTell(const HeardUnit& told) override { heard = told; }
            HeardUnit heard;
        } keeper(exchange);
        receive(unit.reply());
        return keeper.heard;
    }

    RecordedSystemLog systemLog;
    ManualRunLoop runLoop;
    ScriptedHostResolver hostResolver;
    ScriptedSystemCalls systemCalls;
    ScriptedReceiveBufferControl receiveBuffers;
    UnitExchange exchange{{.session = {.runLoop = runLoop,
                                       .hostResolver = hostResolver,
                                       .systemCalls = systemCalls,
                                       .receiveBuffers = &receiveBuffers},
                           .now = [this] { return runLoop.now(); }}};

private:
    std::size_t _seen = 0;
};

inline bool operator==(const OpenFailure& left, const OpenFailure& right) {
    return left.arePortsTaken == right.arePortsTaken && left.error == right.error;
}

} // namespace kx
