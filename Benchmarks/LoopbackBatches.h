// Batches of datagrams over loopback, for the benchmarks that receive them.
//
// Each round sends a batch that fits into the default receive buffer, and times only the reception.

#pragma once

#include "LoopbackSender.h"

#include <benchmark/benchmark.h>

#include <functional>
#include <span>

namespace kx {

inline constexpr int batch = 128;
inline constexpr std::size_t datagramLength = 81; // length of a unit's reply

// Times `receiveBatch`, which returns when a whole batch has arrived at `port`.
void timeBatches(benchmark::State& state, const std::function<void()>& receiveBatch);

// The same for a receiver that measures its own time: `receiveBatch` returns the seconds that it
// took. Every datagram of the batch is `datagram`.
void timeBatchesBy(benchmark::State& state, const std::function<double()>& receiveBatch,
                   const Bytes& datagram = Bytes(datagramLength));

// Sends the datagrams batch by batch. `receive` returns when so many have arrived, with the seconds
// that it took; the result is their sum.
double secondsInBatches(std::span<const LoopbackDatagram> datagrams,
                        const std::function<double(int count)>& receive);

} // namespace kx
