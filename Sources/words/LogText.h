// The text of the event log: UTF-8 that only grows at its end, cut into rows.
//
// A line feed ends a line, and nothing else does. A row is a line, or a part of a line too long to
// be shown in one piece. Appending costs what is appended, however long the text is: it lies in
// pieces of whole rows, and none is touched again once it is full. Beside its bytes the text takes
// two for each row. A copy shares all pieces that are full: it takes next to nothing, and is
// independent of its origin all the same. One that was moved from is only assigned to.
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
    // In bytes, without the line feed. A longer line goes on in the next row.
    static constexpr std::size_t longestRow = 1024;

    struct Row {
        std::size_t position;  // of its first byte
        std::string_view text; // without the line feed
        bool endsLine;         // by a line feed; false for the last row, and inside a long line
    };

    struct Piece {
        std::size_t position;
        std::string_view text;
    };

    LogText() = default;
    explicit LogText(std::string_view text) { append(text); }

    // Gives the memory back that no copy shares.
    void clear();
    void append(std::string_view text);

    std::size_t size() const;

    // At least one: a text that is empty, or ends with a line feed, has an empty last row.
    std::size_t rowCount() const;

    // `index` must be below rowCount().
    Row row(std::size_t index) const;

    // The row that holds a position. At a break inside a long line it is the later one.
    std::size_t rowAt(std::size_t position) const;

    // A part of the text that begins at or before the position, for whoever goes through all of it:
    // the next one begins where this one ends. They break between rows.
    Piece pieceAt(std::size_t position) const;

    // All of it, copied.
    std::string text() const;

    // Counted when first asked for and remembered: only a screen reader asks.
    std::size_t charactersBefore(std::size_t position) const;

    // The position after so many characters, the end when there are fewer.
    std::size_t positionAfter(std::size_t characters) const;

private:
    struct Chunk {
        std::size_t position = 0;
        std::size_t firstRow = 0;
        std::string text;
        std::vector<std::uint16_t> rowStarts{0}; // within text
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
    mutable std::vector<std::size_t> _charactersBeforeChunk; // for the first chunks, ever more
};

// The UTF-16 units of a text, counted without a look at whether it is well-formed, and the bytes of
// its first units, or of all when there are fewer.
std::size_t charactersIn(std::string_view text);
std::size_t bytesOfCharacters(std::string_view text, std::size_t characters);

} // namespace kx
