#include "platform/qt/LogText.h"

#include "platform/qt/QtText.h"

#include <algorithm>
#include <limits>

namespace kx {

namespace {

// What the starts of the rows can count. A chunk has room for many rows, so that the one that moves
// on to the next chunk is a small part of it.
constexpr std::size_t mostInChunk = std::numeric_limits<std::uint16_t>::max();

bool continuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

// The UTF-16 units of the character that a byte begins: none when it continues one.
std::size_t unitsBegunBy(char byte) {
    const bool needsPair = static_cast<unsigned char>(byte) >= 0xF0U;
    return continuesCharacter(byte) ? 0 : 1 + static_cast<std::size_t>(needsPair);
}

// The longest beginning of at most `most` bytes that splits no character. `text` is longer.
std::string_view wholeCharacters(std::string_view text, std::size_t most) {
    std::size_t size = most;
    for (int step = 0; step < 3 && size > 0 && continuesCharacter(text[size]); ++step) {
        --size;
    }
    return text.substr(0, size);
}

} // namespace

LogText::LogText() {
    clear();
}

void LogText::clear() {
    _chunks.clear();
    _chunks.shrink_to_fit();
    _chunks.emplace_back();
    _charactersBeforeChunk.clear();
}

void LogText::append(std::string_view text) {
    while (!text.empty()) {
        const std::size_t room = longestRow - lastRow().size();
        const std::size_t lineFeed = text.substr(0, room + 1).find('\n');
        if (lineFeed == std::string_view::npos && text.size() <= room) {
            addToLastRow(text);
            return;
        }
        const std::string_view rest = lineFeed != std::string_view::npos
                                          ? text.substr(0, lineFeed + 1)
                                          : wholeCharacters(text, room);
        addToLastRow(rest);
        beginRow();
        text.remove_prefix(rest.size());
    }
}

void LogText::addToLastRow(std::string_view text) {
    if (_chunks.back().text.size() + text.size() > mostInChunk) {
        beginChunk();
    }
    _chunks.back().text += text;
}

void LogText::beginRow() {
    Chunk& chunk = _chunks.back();
    chunk.rowStarts.push_back(static_cast<std::uint16_t>(chunk.text.size()));
}

// The last row moves on: a chunk holds whole rows.
void LogText::beginChunk() {
    Chunk& full = _chunks.back();
    const std::size_t end = full.rowStarts.back();
    Chunk next;
    next.position = full.position + end;
    next.firstRow = full.firstRow + full.rowStarts.size() - 1;
    next.text.reserve(mostInChunk);
    next.text.assign(full.text, end);
    full.text.resize(end);
    full.rowStarts.pop_back();
    full.rowStarts.shrink_to_fit();
    _chunks.push_back(std::move(next));
}

std::string_view LogText::lastRow() const {
    return std::string_view(_chunks.back().text).substr(_chunks.back().rowStarts.back());
}

std::size_t LogText::size() const {
    return _chunks.back().position + _chunks.back().text.size();
}

std::size_t LogText::rowCount() const {
    return _chunks.back().firstRow + _chunks.back().rowStarts.size();
}

LogText::Row LogText::row(std::size_t index) const {
    const auto next =
        std::upper_bound(_chunks.begin(), _chunks.end(), index,
                         [](std::size_t row, const Chunk& chunk) { return row < chunk.firstRow; });
    const Chunk& chunk = *std::prev(next);
    const std::size_t within = index - chunk.firstRow;
    const std::size_t start = chunk.rowStarts[within];
    const bool isLast = within + 1 == chunk.rowStarts.size();
    const std::size_t end = isLast ? chunk.text.size() : chunk.rowStarts[within + 1];
    std::string_view text = std::string_view(chunk.text).substr(start, end - start);
    const bool endsLine = text.ends_with('\n');
    text.remove_suffix(endsLine ? 1 : 0);
    return {chunk.position + start, text, endsLine};
}

std::size_t LogText::rowAt(std::size_t position) const {
    const Chunk& chunk = chunkAt(position);
    const std::size_t within = position - chunk.position;
    const auto next = std::upper_bound(chunk.rowStarts.begin(), chunk.rowStarts.end(), within);
    return chunk.firstRow + static_cast<std::size_t>(next - chunk.rowStarts.begin()) - 1;
}

const LogText::Chunk& LogText::chunkAt(std::size_t position) const {
    const auto next = std::upper_bound(
        _chunks.begin(), _chunks.end(), position,
        [](std::size_t sought, const Chunk& chunk) { return sought < chunk.position; });
    return *std::prev(next);
}

LogText::Piece LogText::pieceAt(std::size_t position) const {
    const Chunk& chunk = chunkAt(position);
    return {chunk.position, chunk.text};
}

QString LogText::text(std::size_t from, std::size_t to) const {
    QString result;
    result.reserve(static_cast<qsizetype>(to - from));
    while (from < to) {
        const Piece piece = pieceAt(from);
        const std::string_view part = piece.text.substr(from - piece.position, to - from);
        result += qtText(part);
        from += part.size();
    }
    return result;
}

std::size_t LogText::charactersBefore(std::size_t position) const {
    const Chunk& chunk = chunkAt(position);
    const auto index = static_cast<std::size_t>(&chunk - _chunks.data());
    if (_charactersBeforeChunk.empty()) {
        _charactersBeforeChunk.push_back(0);
    }
    while (_charactersBeforeChunk.size() <= index) {
        const Chunk& counted = _chunks[_charactersBeforeChunk.size() - 1];
        _charactersBeforeChunk.push_back(_charactersBeforeChunk.back() +
                                         charactersIn(counted.text));
    }
    const std::string_view before(chunk.text.data(), position - chunk.position);
    return _charactersBeforeChunk[index] + charactersIn(before);
}

std::size_t LogText::positionAfter(std::size_t characters) const {
    charactersBefore(size()); // counts every chunk
    const auto next =
        std::upper_bound(_charactersBeforeChunk.begin(), _charactersBeforeChunk.end(), characters);
    const auto index = static_cast<std::size_t>(next - _charactersBeforeChunk.begin()) - 1;
    const Chunk& chunk = _chunks[index];
    return chunk.position +
           bytesOfCharacters(chunk.text, characters - _charactersBeforeChunk[index]);
}

std::size_t charactersIn(std::string_view text) {
    std::size_t units = 0;
    for (const char byte : text) {
        units += unitsBegunBy(byte);
    }
    return units;
}

std::size_t bytesOfCharacters(std::string_view text, std::size_t characters) {
    std::size_t bytes = 0;
    std::size_t units = 0;
    while (bytes < text.size()) {
        units += unitsBegunBy(text[bytes]);
        if (units > characters) {
            break;
        }
        ++bytes;
    }
    return bytes;
}

} // namespace kx
