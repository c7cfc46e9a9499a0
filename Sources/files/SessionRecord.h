// The latest datagrams of a session, so that it can be saved after something went wrong.
//
// It keeps the last 4 MiB of them, headers of its own included, and forgets the oldest ones.
// Keeping one costs a copy of its bytes; nothing is looked at or put into words before the record
// is saved.
//
// Threading: one thread. Ownership: it copies what it is given. Memory: at most keptBytes and half
// as much again. Strangers send much of what is in it, and these bytes are kept as they came.

#pragma once

#include "files/Capture.h"
#include "support/ByteRange.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace kx {

class SessionRecord {
public:
    static constexpr std::size_t keptBytes = std::size_t{4} * 1024 * 1024;

    // `limit` is how many bytes it keeps at least, once so many have come.
    explicit SessionRecord(std::size_t limit = keptBytes)
        : _limit(limit) {}

    // Keeps one datagram, and of its data and its comment at most 65,535 bytes each. An own one
    // without a comment gets that of commentNextSend().
    void keep(const CapturedDatagram& datagram, ByteView data);

    // The comment of the own datagram without one that is kept next, and of no other. At most
    // 65,535 bytes, the rest is cut off.
    void commentNextSend(std::string_view comment) {
        _nextComment = comment.substr(0, longestPart);
    }

    // The datagrams that are kept, the oldest first. What `each` is given is valid during its call.
    void
    forEach(const std::function<void(const CapturedDatagram& datagram, ByteView data)>& each) const;

    std::uint64_t kept() const { return _kept; }

    // How many datagrams made room for later ones.
    std::uint64_t forgotten() const { return _forgotten; }

private:
    // A run of datagrams, forgotten as a whole, so that keeping one never looks at the oldest ones.
    struct Chunk {
        std::unique_ptr<std::uint8_t[]> bytes; // of chunkLength
        std::size_t length = 0;                // how many of them are in use
        std::uint64_t datagrams = 0;
    };

    // Room for some of the longest datagrams, so that little of a chunk stays empty.
    static constexpr std::size_t chunkLength = std::size_t{256} * 1024;

    static constexpr std::size_t longestPart = 65'535;

    void beginChunk();

    std::size_t _limit;
    std::deque<Chunk> _chunks; // the oldest first
    std::size_t _bytesInFull = 0;
    std::uint64_t _kept = 0;
    std::uint64_t _forgotten = 0;
    std::string _nextComment;
};

} // namespace kx
