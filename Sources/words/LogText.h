// The text of the event log: UTF-8 that grows at its end, cut into rows.
//
// A line feed ends a line, and no other character does; a line feed of a foreign text is quoted
// (support/QuotedLines.h) and ends none. A row is a line, or a part of a line that is too long to
// be shown in one piece. The cost of appending depends only on the appended text:
// the text lies in pieces of whole rows, and a full piece never changes. Beside its bytes the text
// takes two bytes for each row. A copy shares all full pieces: it takes next to no memory, and is
// still independent of its origin. A text that was moved from may only be assigned to.
//
// A text may have a limit. Then trim() removes the oldest pieces beyond it, and one line in their
// place says so. It is not part of append(), so that the owner of positions can adapt them.
//
// Positions count bytes from the beginning and stand before a character or at the end. Characters,
// where they are counted, are UTF-16 units. Main thread only. Views of the text are valid until it
// changes.

#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
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

    // The text that trim() took away, and the line that stands in its place.
    struct Trimmed {
        std::size_t bytes = 0;
        std::size_t rows = 0;
        std::size_t noticeBytes = 0; // the line is one row

        // What a position or a row from before is now. What was taken away is now the first
        // position and the first row behind the line.
        std::size_t movedPosition(std::size_t position) const;
        std::size_t movedRow(std::size_t row) const;
    };

    LogText() = default;
    explicit LogText(std::string_view text) { append(text); }

    // From now on trim() leaves at most so many bytes, at least 131,072. `notice` is the line that
    // says that older text is gone, without a line feed and of at most 1,024 bytes. A copy has the
    // same limit.
    void setLimit(std::size_t bytes, std::string_view notice);

    // Removes the text, and frees the memory that no copy shares. The limit stays.
    void clear();
    void append(std::string_view text);

    // The bytes of the oldest pieces that trim() would take away; 0 within the limit.
    std::size_t surplus() const;

    // Takes the surplus away. Each trim replaces the notice of the one before.
    Trimmed trim();

    // Shares the full pieces of a text that grew from a copy of this one, or this one from a copy
    // of it, by the same calls. Both then take the memory of one.
    void shareMemoryOf(const LogText& equalText);

    // A text of the pieces that hold the range, and of nothing else, sharing their memory.
    // `position` is where it begins in this text: the range in it begins at from - position.
    struct Excerpt;
    Excerpt excerpt(std::size_t from, std::size_t to) const;

    std::size_t size() const;

    // The number of rows, at least one: a text that is empty, or ends with a line feed, has an
    // empty last row.
    std::size_t rowCount() const;

    // `index` must be below rowCount().
    Row row(std::size_t index) const;

    // The row that holds a position. At a break inside a long line this is the later row.
    std::size_t rowAt(std::size_t position) const;

    // A part of the text that begins at or before the position. To read all of the text, ask for
    // the next part where this one ends. Parts begin and end between rows. Line feeds of foreign
    // texts are quoted in it, and in a row.
    Piece pieceAt(std::size_t position) const;

    // A copy of all of the text as it was appended, with no line feed quoted.
    std::string text() const;

    // The text between two positions as a person sees it, for showing and searching: each row is
    // the visible text (support/VisibleText.h) with its tabs, a carriage return at its end, which
    // ends most commands, is a blank, and zero bytes at the end of a word, with which units fill up
    // short unit IDs, are characters without a width. It has as many characters as the text.
    std::string shownText(std::size_t from, std::size_t to) const;

    // The same for other programs, to be copied or saved: without the characters that have no
    // width, so it may have fewer characters than the text.
    std::string copiedText(std::size_t from, std::size_t to) const;

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
    std::size_t chunksOfSurplus() const;
    const Chunk& chunk(std::size_t index) const;
    const Chunk& firstChunk() const { return chunk(0); }
    std::size_t chunkAt(std::size_t position) const;
    std::size_t chunkOfRow(std::size_t row) const;
    void forgetCharacters(std::size_t chunks);

    // Positions and rows within chunks count from the beginning of all that was ever appended, so
    // trimming changes no chunk. Callers count from the first chunk.
    std::vector<std::shared_ptr<const Chunk>> _full;
    Chunk _last;
    mutable std::vector<std::size_t> _charactersBeforeChunk; // of the chunks counted so far
    std::size_t _limit = std::numeric_limits<std::size_t>::max();
    std::string _notice; // with its line feed
};

struct LogText::Excerpt {
    LogText text;
    std::size_t position;
};

// Stands in a row for a zero byte at the end of a word: U+2060, which no text shows otherwise.
inline constexpr std::string_view characterWithoutWidth = "\u2060";

// A row as it is shown (see LogText::shownText()), without its line feed.
std::string shownRow(std::string_view row);

// The first is the number of UTF-16 units of a text, the second the number of bytes of its first
// units, or of all bytes when there are fewer units. Neither checks whether the text is
// well-formed.
std::size_t charactersIn(std::string_view text);
std::size_t bytesOfCharacters(std::string_view text, std::size_t characters);

} // namespace kx
