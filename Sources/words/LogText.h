// The text of the event log: UTF-8 that only grows at its end, cut into rows.
//
// A line feed ends a line, and no other character does. A row is a line, or a part of a line that
// is too long to be shown in one piece. The cost of appending depends only on the appended text:
// the text lies in pieces of whole rows, and a full piece never changes. Beside its bytes the text
// takes two bytes for each row. A copy shares all full pieces: it takes next to no memory, and is
// still independent of its origin. A text that was moved from may only be assigned to.
//
// Positions count bytes from the beginning and stand before a character or at the end. Characters,
// where they are counted, are UTF-16 units. Main thread only. Views of the text are valid until it
// changes.

#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

class LogText {
public:
    // The length limit of a row in bytes, without the line feed. A longer line goes on in the next
    // row.
    static constexpr std::size_t longestRow = 1024;

    struct Row {
        std::size_t position;  // position of its first byte
        std::string_view text; // without the line feed
        bool endsLine;         // false for the last row, and inside a long line
    };

    struct Piece {
        std::size_t position;
        std::string_view text;
    };

    LogText() = default;
    explicit LogText(std::string_view text) { append(text); }

    // Removes the text, and frees the memory that no copy shares.
    void clear();
    void append(std::string_view text);

    std::size_t size() const;

    // The number of rows, at least one: a text that is empty, or ends with a line feed, has an
    // empty last row.
    std::size_t rowCount() const;

    // `index` must be below rowCount().
    Row row(std::size_t index) const;

    // The row that holds a position. At a break inside a long line this is the later row.
    std::size_t rowAt(std::size_t position) const;

    // A part of the text that begins at or before the position. To read all of the text, ask for
    // the next part where this one ends. Parts begin and end between rows.
    Piece pieceAt(std::size_t position) const;

    // A copy of all of the text.
    std::string text() const;

    // The number of characters before a position. It is counted when it is first asked for and then
    // remembered, because only a screen reader asks for it.
    std::size_t charactersBefore(std::size_t position) const;

    // The position after so many characters, or the end when there are fewer.
    std::size_t positionAfter(std::size_t characters) const;

private:
    struct Chunk {
        std::size_t position = 0;
        std::size_t firstRow = 0;
        std::string text;
        std::vector<std::uint16_t> rowStarts{0}; // offsets of the rows within text
    };

    void addToLastRow(std::string_view text);
    void beginRow();
    void beginChunk();
    std::string_view lastRow() const;
    std::size_t chunkCount() const { return _full.size() + 1; }
    const Chunk& chunk(std::size_t index) const;
    std::size_t chunkAt(std::size_t position) const;
    std::size_t chunkOfRow(std::size_t row) const;

    std::vector<std::shared_ptr<const Chunk>> _full;
    Chunk _last;
    mutable std::vector<std::size_t> _charactersBeforeChunk; // of the chunks counted so far
};

// The first is the number of UTF-16 units of a text, the second the number of bytes of its first
// units, or of all bytes when there are fewer units. Neither checks whether the text is
// well-formed.
std::size_t charactersIn(std::string_view text);
std::size_t bytesOfCharacters(std::string_view text, std::size_t characters);

} // namespace kx
