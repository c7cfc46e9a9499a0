#include "LoopbackBatches.h"

#include <algorithm>
#include <chrono>

namespace kx {

void timeBatches(benchmark::State& state, const std::function<void()>& receiveBatch) {
    timeBatchesBy(state, [&] {
        const auto begin = std::chrono::steady_clock::now();
        receiveBatch();
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    });
}

void timeBatchesBy(benchmark::State& state, const std::function<double()>& receiveBatch,
                   const Bytes& datagram) {
    const std::vector<LoopbackDatagram> datagrams(batch, {.data = datagram});
    for (auto _ : state) {
        state.SetIterationTime(secondsInBatches(datagrams, [&](int) { return receiveBatch(); }));
    }
    state.SetItemsProcessed(state.iterations() * batch);
}

double secondsInBatches(std::span<const LoopbackDatagram> datagrams,
                        const std::function<double(int count)>& receive) {
    const LoopbackSender sender;
    double seconds = 0;
    while (!datagrams.empty()) {
        const auto next = datagrams.first(std::min<std::size_t>(batch, datagrams.size()));
        sender.send(next);
        seconds += receive(static_cast<int>(next.size()));
        datagrams = datagrams.subspan(next.size());
    }
    return seconds;
}

} // namespace kx
