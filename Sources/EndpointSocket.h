// The socket of an endpoint: a descriptor with its watch on the run loop. It has what the system
// calls have read ahead read too, in turns that leave time for other events.
//
// Threading: everything, callbacks included, on the thread of the run loop. Ownership: run loop,
// system calls and the callback's context must outlive the socket.

#pragma once

#include "DatagramSystemCalls.h"
#include "support/ByteRange.h"
#include "support/RunLoop.h"

#include <cstddef>
#include <cstdint>

namespace kx {

class EndpointSocket;
class UDPEcho;

// The base of the object that a plain callback is given as its context.
class CallbackInfo {
public:
    virtual ~CallbackInfo() = default;

    // The object itself when it is an endpoint, otherwise null. A dynamic cast would take longer
    // than everything else that a callback checks.
    virtual UDPEcho* endpoint() { return nullptr; }
};

enum class SocketCallbackType { none = 0, read = 1, accept = 2, data = 3, connect = 4 };

// What a socket calls. A read has neither an address nor data: the callee reads them.
using SocketCallback = void (*)(const EndpointSocket* socket, SocketCallbackType type,
                                const Bytes* address, const void* data, CallbackInfo* info);

// A descriptor with its watch on the run loop. Destroying it ends the watch and, with
// kCFSocketCloseOnInvalidate among its flags, closes the descriptor. It may be destroyed inside the
// watch's call.
class EndpointSocket {
public:
    EndpointSocket(DatagramSystemCalls& systemCalls, int descriptor);
    ~EndpointSocket();
    EndpointSocket(const EndpointSocket&) = delete;
    EndpointSocket& operator=(const EndpointSocket&) = delete;

    int native() const { return _descriptor; }
    std::uint32_t flags() const { return _flags; }

    // Calls `callback` with this object, SocketCallbackType::read and `info` whenever a datagram
    // can be read, and again for each that the system calls have read ahead. False when the system
    // cannot watch the descriptor.
    bool watch(RunLoop& runLoop, SocketCallback callback, CallbackInfo& info);

    // Has to be called between a read of this many bytes and what follows from it. When datagrams
    // have been read ahead, the next turn of the loop hands them out, also one inside the event.
    void didRead(std::size_t length);

private:
    void readAll();

    DatagramSystemCalls& _systemCalls;
    int _descriptor;
    std::uint32_t _flags;
    RunLoop* _runLoop = nullptr;
    SocketCallback _callback = nullptr;
    CallbackInfo* _info = nullptr;
    RunLoop::Handle _source;
    RunLoop::Handle _nextTurn;
    std::size_t _bytesInTurn = 0;
    bool* _isGone = nullptr; // of the innermost readAll()
};

} // namespace kx
