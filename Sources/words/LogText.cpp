#include "words/LogText.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace kx {

namespace {

// The highest offset that the starts of the rows can hold. A chunk has room for many rows, so the
// row that moves to the next chunk is a small part of it.
constexpr std::size_t mostInChunk = std::numeric_limits<std::uint16_t>::max();

bool continuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

// The UTF-16 units of the character that a byte begins; 0 for a continuation byte.
std::size_t unitsBegunBy(char byte) {
    const bool needsPair = static_cast<unsigned char>(byte) >= 0xF0U;
    return continuesCharacter(byte) ? 0 : 1 + static_cast<std::size_t>(needsPair);
}

// The longest beginning of at most `most` bytes that splits no character. `text` must be longer
// than `most`.
std::string_view wholeCharacters(std::string_view text, std::size_t most) {
    std::size_t size = most;
    for (int step = 0; step < 3 && size > 0 && continuesCharacter(text[size]); ++step) {
        --size;
    }
    return text.substr(0, size);
}

} // namespace

void LogText::clear() {
    *this = LogText();
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
    if (_last.text.size() + text.size() > mostInChunk) {
        beginChunk();
    }
    _last.text += text;
}

void LogText::beginRow() {
    _last.rowStarts.push_back(static_cast<std::uint16_t>(_last.text.size()));
}

// Moves the last row to the new chunk, because a chunk holds whole rows.
void LogText::beginChunk() {
    const std::size_t end = _last.rowStarts.back();
    Chunk next;
    next.position = _last.position + end;
    next.firstRow = _last.firstRow + _last.rowStarts.size() - 1;
    next.text.reserve(mostInChunk);
    next.text.assign(_last.text, end);
    Chunk full = std::exchange(_last, std::move(next));
    full.text.resize(end);
    full.rowStarts.pop_back();
    full.rowStarts.shrink_to_fit();
    _full.push_back(std::make_shared<const Chunk>(std::move(full)));
}

std::string_view LogText::lastRow() const {
    return std::string_view(_last.text).substr(_last.rowStarts.back());
}

std::size_t LogText::size() const {
    return _last.position + _last.text.size();
}

std::size_t LogText::rowCount() const {
    return _last.firstRow + _last.rowStarts.size();
}

LogText::Row LogText::row(std::size_t index) const {
    const Chunk& holder = chunk(chunkOfRow(index));
    const std::size_t within = index - holder.firstRow;
    const std::size_t start = holder.rowStarts[within];
    const bool isLast = within + 1 == holder.rowStarts.size();
    const std::size_t end = isLast ? holder.text.size() : holder.rowStarts[within + 1];
    std::string_view text = std::string_view(holder.text).substr(start, end - start);
    const bool endsLine = text.ends_with('\n');
    text.remove_suffix(endsLine ? 1 : 0);
    return {holder.position + start, text, endsLine};
}

std::size_t LogText::rowAt(std::size_t position) const {
    const Chunk& holder = chunk(chunkAt(position));
    const std::size_t within = position - holder.position;
    const auto next = std::upper_bound(holder.rowStarts.begin(), holder.rowStarts.end(), within);
    return holder.firstRow + static_cast<std::size_t>(next - holder.rowStarts.begin()) - 1;
}

const LogText::Chunk& LogText::chunk(std::size_t index) const {
    return index < _full.size() ? *_full[index] : _last;
}

std::size_t LogText::chunkAt(std::size_t position) const {
    if (position >= _last.position) {
        return _full.size();
    }
    const auto next = std::ranges::upper_bound(_full, position, {},
                                               [](const auto& full) { return full->position; });
    return static_cast<std::size_t>(next - _full.begin()) - 1;
}

std::size_t LogText::chunkOfRow(std::size_t row) const {
    if (row >= _last.firstRow) {
        return _full.size();
    }
    const auto next =
        std::ranges::upper_bound(_full, row, {}, [](const auto& full) { return full->firstRow; });
    return static_cast<std::size_t>(next - _full.begin()) - 1;
}

LogText::Piece LogText::pieceAt(std::size_t position) const {
    const Chunk& holder = chunk(chunkAt(position));
    return {holder.position, holder.text};
}

std::string LogText::text() const {
    std::string whole;
    whole.reserve(size());
    for (std::size_t index = 0; index < chunkCount(); ++index) {
        whole += chunk(index).text;
    }
    return whole;
}

std::size_t LogText::charactersBefore(std::size_t position) const {
    const std::size_t index = chunkAt(position);
    if (_charactersBeforeChunk.empty()) {
        _charactersBeforeChunk.push_back(0);
    }
    while (_charactersBeforeChunk.size() <= index) {
        const Chunk& counted = chunk(_charactersBeforeChunk.size() - 1);
        _charactersBeforeChunk.push_back(_charactersBeforeChunk.back() +
                                         charactersIn(counted.text));
    }
    const Chunk& holder = chunk(index);
    const std::string_view before(holder.text.data(), position - holder.position);
    return _charactersBeforeChunk[index] + charactersIn(before);
}

std::size_t LogText::positionAfter(std::size_t characters) const {
    charactersBefore(size()); // makes sure that every chunk is counted
    const auto next =
        std::upper_bound(_charactersBeforeChunk.begin(), _charactersBeforeChunk.end(), characters);
    const auto index = static_cast<std::size_t>(next - _charactersBeforeChunk.begin()) - 1;
    const Chunk& holder = chunk(index);
    return holder.position +
           bytesOfCharacters(holder.text, characters - _charactersBeforeChunk[index]);
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
