// The capture of what a command sends and receives.

#include "commands/CommandRun.h"
#include "words/DatagramLines.h"

#include <utility>

namespace kx {

CommandRun::Refusal CommandRun::lookAtCapture() {
    const auto path = _line.valueOf("--capture");
    if (!path.has_value()) {
        return std::nullopt;
    }
    _captureFile = std::make_unique<OutputFile>(*path);
    return refusalOfFile(*_captureFile, _captureFile->look());
}

void CommandRun::openCapture() {
    if (_captureFile == nullptr) {
        return;
    }
    const auto take = [this](CapturedDatagram datagram, ByteView data) {
        if (!std::exchange(_captureHasBegun, true)) {
            writeCapture(captureHeader("kxctl " KX_VERSION));
        }
        const std::string line = datagram.isOwn ? lineOfSentDatagram(data, datagram.destination)
                                                : lineOfReceivedDatagram(data);
        datagram.comment = line;
        writeCapture(capturedDatagram(datagram, data));
    };
    const auto ownAddress = [this](std::uint32_t link) {
        for (const HostInterface& interface : _interfaces) {
            if (interface.link == link && !interface.networks.empty()) {
                return interface.networks.front().address;
            }
        }
        return std::uint32_t{0};
    };
    _capture = std::make_unique<CapturingSystemCalls>(
        _services.session.systemCalls,
        CapturingSystemCalls::Services{.take = take,
                                       .now = _services.utc,
                                       .ownAddress = ownAddress,
                                       .receiveBuffers = _services.session.receiveBuffers});
}

void CommandRun::writeCapture(const Bytes& bytes) {
    _captureFile->write({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
}

// A run that sent nothing leaves no file.
void CommandRun::endCapture() {
    if (_captureHasBegun) {
        writeCapture(captureStatistics(_services.utc(), _capture->counts()));
    }
}

} // namespace kx
