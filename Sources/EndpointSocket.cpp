#include "EndpointSocket.h"

#include <utility>

namespace kx {

namespace {

// When datagrams of so many bytes have been handed out, other events get their turn before those
// that are ahead. A long text takes its reader as long as hundreds of replies.
constexpr std::size_t longestTurn = 8192;

} // namespace

EndpointSocket::EndpointSocket(DatagramSystemCalls& systemCalls, int descriptor)
    : _systemCalls(systemCalls)
    , _descriptor(descriptor)
    , _flags(systemCalls.socketFlags()) {}

EndpointSocket::~EndpointSocket() {
    if (_isGone != nullptr) {
        *_isGone = true;
    }
    _source.reset(); // a watched descriptor must be open
    if ((_flags & kCFSocketCloseOnInvalidate) != 0) {
        _systemCalls.close(_descriptor);
    }
}

bool EndpointSocket::watch(RunLoop& runLoop, SocketCallback callback, CallbackInfo& info) {
    _runLoop = &runLoop;
    _callback = callback;
    _info = &info;
    _systemCalls.allowReadingAhead(_descriptor);
    _source = runLoop.watchForReading(_descriptor, [this] { readAll(); });
    return _source != nullptr;
}

// The descriptor need not be readable again when all has been read ahead.
void EndpointSocket::didRead(std::size_t length) {
    _bytesInTurn += length;
    if (_nextTurn == nullptr && _runLoop != nullptr && _systemCalls.hasReadAhead(_descriptor)) {
        _nextTurn = _runLoop->callOnceAfter({}, [this] {
            _nextTurn = nullptr;
            readAll();
        });
    }
}

// Each call may destroy this object, and may run the loop, which comes back here.
void EndpointSocket::readAll() {
    bool isGone = false;
    bool* const outer = std::exchange(_isGone, &isGone);
    const SocketCallback callback = _callback;
    CallbackInfo* const info = _info;
    _bytesInTurn = 0;
    do {
        callback(this, SocketCallbackType::read, nullptr, nullptr, info);
    } while (!isGone && _bytesInTurn < longestTurn && _systemCalls.hasReadAhead(_descriptor));
    if (!isGone) {
        _isGone = outer;
        if (!_systemCalls.hasReadAhead(_descriptor)) {
            _nextTurn = nullptr;
        }
    } else if (outer != nullptr) {
        *outer = true;
    }
}

} // namespace kx
