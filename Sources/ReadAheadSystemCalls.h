// Datagram system calls that read ahead where that is allowed: when several datagrams wait in the
// system's buffer, one system call takes up to thirty-two of them, and receiveFrom() hands them out
// one by one, in order. That takes about half the time of a wait and a read for each datagram.
//
// What was read ahead of a descriptor is lost when the descriptor is closed, as it would be in the
// system's own buffer. While datagrams of one descriptor are ahead, those of another are read one
// by one; each endpoint hands out all that is ahead in its own turn of the loop.
//
// Threading: one thread. The object keeps 2 MiB, of which the system gives only the pages that
// datagrams have touched.

#pragma once

#include "DatagramSystemCalls.h"

#include <memory>
#include <set>

namespace kx {

class ReadAheadSystemCalls final : public DatagramSystemCalls {
public:
    ReadAheadSystemCalls();
    ~ReadAheadSystemCalls() override;
    ReadAheadSystemCalls(const ReadAheadSystemCalls&) = delete;
    ReadAheadSystemCalls& operator=(const ReadAheadSystemCalls&) = delete;

    void allowReadingAhead(int descriptor) override { _allowed.insert(descriptor); }

    // The next datagram that was read ahead; otherwise recvmmsg(2), flags MSG_WAITFORONE, of as
    // many as there are. A failure behind the first datagram is that of the next call.
    ssize_t receiveFrom(int descriptor, std::span<std::uint8_t> buffer,
                        DatagramOrigin& origin) override;
    bool hasReadAhead(int descriptor) const override;
    int close(int descriptor) override;

private:
    class Batch;

    std::unique_ptr<Batch> _batch;
    std::set<int> _allowed;
};

} // namespace kx
