// The same reception by other libraries, for information: the time of each for one datagram,
// compared with the endpoint on the poll loop or, for a library on Qt's loop, with the endpoint on
// that loop.
//
// asio and libuv decide by themselves how many datagrams they take before they wait again. The
// others take one for each event.

#include "Comparison.h"
#include "LoopbackBatches.h"

#include <asio.hpp>
#include <uv.h>

#include <QApplication>
#include <QHostAddress>
#include <QProcess>
#include <QUdpSocket>
#include <array>
#include <functional>
#include <memory>

namespace kx {

namespace {

using Buffer = std::array<char, 65536>;

void receiveByAsio(benchmark::State& state) {
    asio::io_context context;
    asio::ip::udp::socket socket(context, {asio::ip::address_v4::loopback(), port});
    const auto buffer = std::make_unique<Buffer>();
    asio::ip::udp::endpoint sender;
    int received = 0;
    std::function<void()> receive = [&] {
        socket.async_receive_from(asio::buffer(*buffer), sender,
                                  [&](const asio::error_code& error, std::size_t) {
                                      if (!error) {
                                          ++received;
                                          receive();
                                      }
                                  });
    };
    receive();
    timeBatches(state, [&] {
        const int wanted = received + batch;
        while (received < wanted) {
            context.run_one();
        }
    });
}
BENCHMARK(receiveByAsio)->UseManualTime();

struct UvReceiver {
    Buffer buffer{};
    int received = 0;
};

void giveBuffer(uv_handle_t* handle, std::size_t, uv_buf_t* buffer) {
    auto& receiver = *static_cast<UvReceiver*>(handle->data);
    *buffer = uv_buf_init(receiver.buffer.data(), static_cast<unsigned>(receiver.buffer.size()));
}

void countDatagram(uv_udp_t* handle, ssize_t length, const uv_buf_t*, const sockaddr*, unsigned) {
    static_cast<UvReceiver*>(handle->data)->received += length > 0 ? 1 : 0;
}

void receiveByLibuv(benchmark::State& state) {
    uv_loop_t loop;
    uv_loop_init(&loop);
    const auto receiver = std::make_unique<UvReceiver>();
    uv_udp_t socket;
    uv_udp_init(&loop, &socket);
    socket.data = receiver.get();
    sockaddr_in address{};
    uv_ip4_addr("127.0.0.1", port, &address);
    if (uv_udp_bind(&socket, reinterpret_cast<const sockaddr*>(&address), 0) != 0) {
        state.SkipWithError("the port is taken");
    } else {
        uv_udp_recv_start(&socket, giveBuffer, countDatagram);
        timeBatches(state, [&] {
            const int wanted = receiver->received + batch;
            while (receiver->received < wanted) {
                uv_run(&loop, UV_RUN_ONCE);
            }
        });
    }
    uv_close(reinterpret_cast<uv_handle_t*>(&socket), nullptr);
    uv_run(&loop, UV_RUN_DEFAULT);
    uv_loop_close(&loop);
}
BENCHMARK(receiveByLibuv)->UseManualTime();

void receiveByQUdpSocket(benchmark::State& state) {
    QUdpSocket socket;
    if (!socket.bind(QHostAddress::LocalHost, port)) {
        state.SkipWithError("the port is taken");
        return;
    }
    const auto buffer = std::make_unique<Buffer>();
    int received = 0;
    QObject::connect(&socket, &QUdpSocket::readyRead, &socket, [&] {
        QHostAddress sender;
        quint16 senderPort = 0;
        received += socket.readDatagram(buffer->data(), static_cast<qint64>(buffer->size()),
                                        &sender, &senderPort) > 0
                        ? 1
                        : 0;
    });
    timeBatches(state, [&] {
        const int wanted = received + batch;
        while (received < wanted) {
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    });
}
BENCHMARK(receiveByQUdpSocket)->UseManualTime();

// A process of Python. It waits until it is told to receive a batch, and then prints how long this
// took.
void receiveByPythonAsyncio(benchmark::State& state) {
    QProcess python;
    python.start("python3", {KX_BENCH_SOURCES "/asyncio_receiver.py", QString::number(port),
                             QString::number(batch)});
    const auto answer = [&python] {
        while (!python.canReadLine() && python.waitForReadyRead()) {
        }
        return python.readLine().trimmed();
    };
    if (answer() != "ready") {
        state.SkipWithError("python3 does not listen");
        return;
    }
    timeBatchesBy(state, [&] {
        python.write("go\n");
        return answer().toDouble();
    });
    python.closeWriteChannel();
    python.waitForFinished();
}
BENCHMARK(receiveByPythonAsyncio)->UseManualTime();

const Comparison asioComparison("receive by asio, beside the endpoint on the poll loop",
                                "receiveByAsio", "receiveOnPollLoop");
const Comparison libuvComparison("receive by libuv, beside the endpoint on the poll loop",
                                 "receiveByLibuv", "receiveOnPollLoop");
const Comparison qUdpSocketComparison("receive by QUdpSocket, beside the endpoint on the Qt loop",
                                      "receiveByQUdpSocket", "receiveOnQtLoop");
const Comparison pythonComparison("receive by Python's asyncio, beside the endpoint on the Qt loop",
                                  "receiveByPythonAsyncio", "receiveOnQtLoop");

} // namespace

} // namespace kx
