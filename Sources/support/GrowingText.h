// A long text that only grows at its end, kept in pieces: growing moves nothing that is there
// already, so it never needs the room of two texts, and little more than that of one.
//
// Threading: none of its own. Views of its pieces are valid until it changes.

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

class GrowingText {
public:
    // In bytes. What is appended in one call is never split, so a longer one is a piece by itself.
    static constexpr std::size_t pieceLength = 65536;

    void append(std::string_view text);

    // Forgets the text and gives its memory back.
    void clear();

    std::size_t size() const { return _size; }

    // The text in order, at least one piece; that of the empty text is empty.
    const std::vector<std::string>& pieces() const { return _pieces; }

    // A copy in one piece.
    std::string text() const;

private:
    std::vector<std::string> _pieces = std::vector<std::string>(1);
    std::size_t _size = 0;
};

} // namespace kx
