#include "files/SessionRecord.h"

#include <algorithm>
#include <cstring>
#include <type_traits>
#include <utility>

namespace kx {

namespace {

// In front of the data and the comment of each datagram.
struct Header {
    std::int64_t time;
    std::uint32_t source;
    std::uint32_t destination;
    std::uint16_t sourcePort;
    std::uint16_t destinationPort;
    std::uint32_t dataLength;
    std::uint32_t commentLength;
    std::uint32_t isOwn;
};
static_assert(std::is_trivially_copyable_v<Header> && sizeof(Header) == 32);

// Copies the bytes and returns where the next ones go.
std::uint8_t* put(std::uint8_t* place, const void* bytes, std::size_t length) {
    if (length > 0) {
        std::memcpy(place, bytes, length);
    }
    return place + length;
}

} // namespace

void SessionRecord::keep(const CapturedDatagram& datagram, ByteView data) {
    data = data.first(std::min(data.size(), longestPart));
    const bool isCommented = datagram.isOwn && datagram.comment.empty();
    const std::string_view comment =
        isCommented ? std::string_view(_nextComment) : datagram.comment.substr(0, longestPart);
    const Header header{.time = datagram.time.count(),
                        .source = datagram.source,
                        .destination = datagram.destination,
                        .sourcePort = datagram.sourcePort,
                        .destinationPort = datagram.destinationPort,
                        .dataLength = static_cast<std::uint32_t>(data.size()),
                        .commentLength = static_cast<std::uint32_t>(comment.size()),
                        .isOwn = datagram.isOwn ? 1U : 0U};
    const std::size_t length = sizeof header + data.size() + comment.size();
    if (_chunks.empty() || _chunks.back().length + length > chunkLength) {
        beginChunk();
    }
    Chunk& chunk = _chunks.back();
    std::uint8_t* place = chunk.bytes.get() + chunk.length;
    place = put(place, &header, sizeof header);
    place = put(place, data.data(), data.size());
    put(place, comment.data(), comment.size());
    chunk.length += length;
    ++chunk.datagrams;
    ++_kept;
    if (isCommented) {
        _nextComment.clear();
    }
}

// The memory of the oldest chunk becomes that of the new one.
void SessionRecord::beginChunk() {
    if (!_chunks.empty()) {
        _bytesInFull += _chunks.back().length;
    }
    Chunk next;
    while (!_chunks.empty() && _bytesInFull - _chunks.front().length >= _limit) {
        next = std::move(_chunks.front());
        _chunks.pop_front();
        _bytesInFull -= next.length;
        _kept -= next.datagrams;
        _forgotten += next.datagrams;
    }
    if (next.bytes == nullptr) {
        next.bytes = std::make_unique_for_overwrite<std::uint8_t[]>(chunkLength);
    }
    next.length = 0;
    next.datagrams = 0;
    _chunks.push_back(std::move(next));
}

void SessionRecord::forEach(
    const std::function<void(const CapturedDatagram& datagram, ByteView data)>& each) const {
    for (const Chunk& chunk : _chunks) {
        ByteView rest(chunk.bytes.get(), chunk.length);
        while (!rest.empty()) {
            Header header{};
            std::memcpy(&header, rest.data(), sizeof header);
            const auto data = rest.subspan(sizeof header, header.dataLength);
            const auto comment =
                rest.subspan(sizeof header + header.dataLength, header.commentLength);
            each({.time = CaptureTime(header.time),
                  .isOwn = header.isOwn != 0,
                  .source = header.source,
                  .destination = header.destination,
                  .sourcePort = header.sourcePort,
                  .destinationPort = header.destinationPort,
                  .comment = {reinterpret_cast<const char*>(comment.data()), comment.size()}},
                 data);
            rest = rest.subspan(sizeof header + data.size() + comment.size());
        }
    }
}

} // namespace kx
