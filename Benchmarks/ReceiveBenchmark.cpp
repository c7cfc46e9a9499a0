// Receives datagrams over loopback through the endpoint, on both run loops, compared with a bare
// loop of epoll_wait(2) and recvmsg(2) that also takes one datagram for each event, and also learns
// its link. How much the system takes for the link is a comparison of its own.

#include "Comparison.h"
#include "LoopbackBatches.h"
#include "ReadAheadSystemCalls.h"
#include "UDPEcho.h"
#include "addresses/SocketAddressRecord.h"
#include "doubles/ScriptedHostResolver.h"
#include "platform/posix/PollRunLoop.h"
#include "platform/qt/QtRunLoop.h"

#include <arpa/inet.h>
#include <benchmark/benchmark.h>
#include <netinet/in.h>
#include <sys/epoll.h>
#include <sys/socket.h>
#include <sys/uio.h>
#include <unistd.h>

#include <QApplication>
#include <array>
#include <functional>

namespace kx {

namespace {

class Counter final : public UDPEchoDelegate {
public:
    void echoDidReceiveDataFromAddress(UDPEcho&, const Bytes& data, const Bytes&) override {
        benchmark::DoNotOptimize(data.data());
        ++received;
    }
    int received = 0;
};

void receiveThroughEndpoint(benchmark::State& state, RunLoop& runLoop,
                            const std::function<void()>& oneTurn) {
    ScriptedHostResolver resolver;
    ReadAheadSystemCalls systemCalls;
    Counter counter;
    const auto echo = UDPEcho::make(runLoop, resolver, systemCalls);
    echo->setDelegate(&counter);
    echo->startServerOnPort(port);
    if (echo->port() == 0) {
        state.SkipWithError("the port is taken");
        return;
    }
    systemCalls.enablePacketInfo(echo->nativeSocket()); // as for a session with units
    timeBatches(state, [&] {
        const int wanted = counter.received + batch;
        while (counter.received < wanted) {
            oneTurn();
        }
    });
}

using Buffer = std::array<char, 65536>;

// Receives what the endpoint asks of the system: the datagram, its sender and its link.
void receiveWithLink(int sock, Buffer& buffer) {
    sockaddr_in sender{};
    iovec bytes{buffer.data(), buffer.size()};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(in_pktinfo))> control;
    msghdr message{};
    message.msg_name = &sender;
    message.msg_namelen = sizeof sender;
    message.msg_iov = &bytes;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    benchmark::DoNotOptimize(::recvmsg(sock, &message, 0));
    benchmark::DoNotOptimize(control.data());
}

void receiveWithoutLink(int sock, Buffer& buffer) {
    sockaddr_in sender{};
    socklen_t length = sizeof sender;
    ::recvfrom(sock, buffer.data(), buffer.size(), 0, reinterpret_cast<sockaddr*>(&sender),
               &length);
}

template<void (*receive)(int sock, Buffer& buffer)>
void receiveOnBareEpoll(benchmark::State& state) {
    const int sock = ::socket(AF_INET, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    const std::int32_t wantsLink = receive == receiveWithLink ? 1 : 0;
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    const int poller = ::epoll_create1(EPOLL_CLOEXEC);
    epoll_event event{EPOLLIN, {}};
    if (::setsockopt(sock, IPPROTO_IP, IP_PKTINFO, &wantsLink, sizeof wantsLink) != 0 ||
        ::bind(sock, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 ||
        ::epoll_ctl(poller, EPOLL_CTL_ADD, sock, &event) != 0) {
        state.SkipWithError("the port is taken");
    } else {
        timeBatches(state, [&] {
            Buffer buffer; // NOLINT: filled by the system
            for (int received = 0; received < batch; ++received) {
                ::epoll_wait(poller, &event, 1, -1);
                receive(sock, buffer);
                benchmark::DoNotOptimize(buffer.data());
            }
        });
    }
    ::close(poller);
    ::close(sock);
}

void receiveBare(benchmark::State& state) {
    receiveOnBareEpoll<receiveWithLink>(state);
}
BENCHMARK(receiveBare)->UseManualTime();

void receiveBareWithoutLink(benchmark::State& state) {
    receiveOnBareEpoll<receiveWithoutLink>(state);
}
BENCHMARK(receiveBareWithoutLink)->UseManualTime();

void receiveOnPollLoop(benchmark::State& state) {
    PollRunLoop runLoop;
    receiveThroughEndpoint(state, runLoop, [&] { runLoop.runOnce(); });
}
BENCHMARK(receiveOnPollLoop)->UseManualTime();

void receiveOnQtLoop(benchmark::State& state) {
    QtRunLoop runLoop;
    receiveThroughEndpoint(state, runLoop,
                           [] { QApplication::processEvents(QEventLoop::WaitForMoreEvents); });
}
BENCHMARK(receiveOnQtLoop)->UseManualTime();

const Comparison pollComparison("receive through the endpoint on the poll loop, beside bare epoll",
                                "receiveOnPollLoop", "receiveBare", 0.6);
const Comparison qtComparison("receive through the endpoint on the Qt loop, beside bare epoll",
                              "receiveOnQtLoop", "receiveBare", 0.6);
const Comparison pollWithoutLink(
    "receive through the endpoint on the poll loop, beside bare epoll without the link",
    "receiveOnPollLoop", "receiveBareWithoutLink", 0.6);
const Comparison
    qtWithoutLink("receive through the endpoint on the Qt loop, beside bare epoll without the link",
                  "receiveOnQtLoop", "receiveBareWithoutLink", 0.6);
const Comparison linkComparison("receive on bare epoll with the link, beside without",
                                "receiveBare", "receiveBareWithoutLink");

} // namespace

} // namespace kx
