#include "LoopbackBatches.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>

namespace kx {

namespace {

// Sends from its own socket to the port on loopback.
class Sender {
public:
    Sender()
        : _socket(::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {
        _address.sin_family = AF_INET;
        _address.sin_port = htons(port);
        _address.sin_addr.s_addr = htonl(loopbackAddress);
    }
    ~Sender() { ::close(_socket); }
    Sender(const Sender&) = delete;
    Sender& operator=(const Sender&) = delete;

    void sendBatch(const Bytes& datagram) const {
        for (int i = 0; i < batch; ++i) {
            ::sendto(_socket, datagram.data(), datagram.size(), 0,
                     reinterpret_cast<const sockaddr*>(&_address), sizeof _address);
        }
    }

private:
    int _socket;
    sockaddr_in _address{};
};

} // namespace

void timeBatches(benchmark::State& state, const std::function<void()>& receiveBatch) {
    timeBatchesBy(state, [&] {
        const auto begin = std::chrono::steady_clock::now();
        receiveBatch();
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    });
}

void timeBatchesBy(benchmark::State& state, const std::function<double()>& receiveBatch,
                   const Bytes& datagram) {
    const Sender sender;
    for (auto _ : state) {
        sender.sendBatch(datagram);
        state.SetIterationTime(receiveBatch());
    }
    state.SetItemsProcessed(state.iterations() * batch);
}

} // namespace kx
