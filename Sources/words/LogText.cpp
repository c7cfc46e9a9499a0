#include "words/LogText.h"

#include "support/QuotedLines.h"
#include "support/VisibleText.h"

#include <algorithm>
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

void LogText::setLimit(std::size_t bytes, std::string_view notice) {
    _limit = bytes;
    _notice = notice;
    _notice += '\n';
}

void LogText::clear() {
    LogText empty;
    empty._limit = _limit;
    empty._notice = std::move(_notice);
    *this = std::move(empty);
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

// --- The limit ---

std::size_t LogText::Trimmed::movedPosition(std::size_t position) const {
    return std::max(position, bytes) - bytes + noticeBytes;
}

std::size_t LogText::Trimmed::movedRow(std::size_t row) const {
    return std::max(row, rows) - rows + (noticeBytes > 0 ? 1 : 0);
}

// The notice of an earlier trim is the first of these chunks.
std::size_t LogText::chunksOfSurplus() const {
    std::size_t chunks = 0;
    if (size() > _limit) {
        std::size_t left = size() + _notice.size();
        while (chunks < _full.size() && left > _limit) {
            left -= _full[chunks]->text.size();
            ++chunks;
        }
    }
    return chunks;
}

std::size_t LogText::surplus() const {
    return chunk(chunksOfSurplus()).position - firstChunk().position;
}

LogText::Trimmed LogText::trim() {
    const std::size_t chunks = chunksOfSurplus();
    if (chunks == 0) {
        return {};
    }
    const Chunk& kept = chunk(chunks);
    const Trimmed trimmed{.bytes = kept.position - firstChunk().position,
                          .rows = kept.firstRow - firstChunk().firstRow,
                          .noticeBytes = _notice.size()};
    Chunk notice;
    notice.position = kept.position - _notice.size();
    notice.firstRow = kept.firstRow - 1;
    notice.text = _notice;
    _full[chunks - 1] = std::make_shared<const Chunk>(std::move(notice));
    _full.erase(_full.begin(), _full.begin() + static_cast<std::ptrdiff_t>(chunks - 1));
    forgetCharacters(chunks);
    return trimmed;
}

// The counts of the chunks that stay are moved. Counting them again would take as long as reading
// all of the text.
void LogText::forgetCharacters(std::size_t chunks) {
    if (_charactersBeforeChunk.size() <= chunks) {
        _charactersBeforeChunk.clear();
        return;
    }
    const std::size_t before = _charactersBeforeChunk[chunks];
    const std::size_t ofNotice = charactersIn(_notice);
    _charactersBeforeChunk.erase(_charactersBeforeChunk.begin(),
                                 _charactersBeforeChunk.begin() +
                                     static_cast<std::ptrdiff_t>(chunks - 1));
    _charactersBeforeChunk.front() = 0;
    for (std::size_t index = 1; index < _charactersBeforeChunk.size(); ++index) {
        _charactersBeforeChunk[index] -= before - ofNotice;
    }
}

// --- Sharing ---

void LogText::shareMemoryOf(const LogText& equalText) {
    if (equalText.chunkCount() != chunkCount() || equalText.size() != size()) {
        return;
    }
    for (std::size_t index = _full.size(); index-- > 0;) {
        if (_full[index] == equalText._full[index]) {
            break;
        }
        _full[index] = equalText._full[index];
    }
}

LogText::Excerpt LogText::excerpt(std::size_t from, std::size_t to) const {
    const std::size_t first = chunkAt(from);
    const std::size_t last = chunkAt(to);
    Excerpt excerpt{.text = {}, .position = chunk(first).position - firstChunk().position};
    const auto at = [this](std::size_t index) {
        return _full.begin() + static_cast<std::ptrdiff_t>(index);
    };
    excerpt.text._full.assign(at(first), at(std::min(last + 1, _full.size())));
    if (last == _full.size()) {
        excerpt.text._last = _last;
    } else {
        excerpt.text._last.position = chunk(last + 1).position;
        excerpt.text._last.firstRow = chunk(last + 1).firstRow;
    }
    return excerpt;
}

// --- Rows and positions ---

std::string_view LogText::lastRow() const {
    return std::string_view(_last.text).substr(_last.rowStarts.back());
}

std::size_t LogText::size() const {
    return _last.position + _last.text.size() - firstChunk().position;
}

std::size_t LogText::rowCount() const {
    return _last.firstRow + _last.rowStarts.size() - firstChunk().firstRow;
}

LogText::Row LogText::row(std::size_t index) const {
    const Chunk& holder = chunk(chunkOfRow(index));
    const std::size_t within = index + firstChunk().firstRow - holder.firstRow;
    const std::size_t start = holder.rowStarts[within];
    const bool isLast = within + 1 == holder.rowStarts.size();
    const std::size_t end = isLast ? holder.text.size() : holder.rowStarts[within + 1];
    std::string_view text = std::string_view(holder.text).substr(start, end - start);
    const bool endsLine = text.ends_with('\n');
    text.remove_suffix(endsLine ? 1 : 0);
    return {holder.position - firstChunk().position + start, text, endsLine};
}

std::size_t LogText::rowAt(std::size_t position) const {
    const Chunk& holder = chunk(chunkAt(position));
    const std::size_t within = position + firstChunk().position - holder.position;
    const auto next = std::upper_bound(holder.rowStarts.begin(), holder.rowStarts.end(), within);
    return holder.firstRow - firstChunk().firstRow +
           static_cast<std::size_t>(next - holder.rowStarts.begin()) - 1;
}

const LogText::Chunk& LogText::chunk(std::size_t index) const {
    return index < _full.size() ? *_full[index] : _last;
}

std::size_t LogText::chunkAt(std::size_t position) const {
    position += firstChunk().position;
    if (position >= _last.position) {
        return _full.size();
    }
    const auto next = std::ranges::upper_bound(_full, position, {},
                                               [](const auto& full) { return full->position; });
    return static_cast<std::size_t>(next - _full.begin()) - 1;
}

std::size_t LogText::chunkOfRow(std::size_t row) const {
    row += firstChunk().firstRow;
    if (row >= _last.firstRow) {
        return _full.size();
    }
    const auto next =
        std::ranges::upper_bound(_full, row, {}, [](const auto& full) { return full->firstRow; });
    return static_cast<std::size_t>(next - _full.begin()) - 1;
}

LogText::Piece LogText::pieceAt(std::size_t position) const {
    const Chunk& holder = chunk(chunkAt(position));
    return {holder.position - firstChunk().position, holder.text};
}

std::string LogText::text() const {
    std::string whole;
    whole.reserve(size());
    for (std::size_t index = 0; index < chunkCount(); ++index) {
        whole += chunk(index).text;
    }
    return unquotedLines(std::move(whole));
}

std::string LogText::shownText(std::size_t from, std::size_t to) const {
    std::string shown;
    shown.reserve(to - from);
    for (std::size_t index = rowAt(from); from < to; ++index) {
        const Row each = row(index);
        const std::size_t end = each.position + each.text.size();
        const std::size_t start = std::min(from, end);
        // A row that is not wanted to its end does not show its end.
        std::string part = shownRow(each.text.substr(start - each.position));
        if (to < end) {
            part.resize(part.size() - shownRow(each.text.substr(to - each.position)).size());
        }
        shown += part;
        from = end;
        if (each.endsLine && from < to) {
            shown += '\n';
            ++from;
        }
    }
    return shown;
}

std::string LogText::copiedText(std::size_t from, std::size_t to) const {
    std::string copied = shownText(from, to);
    for (auto place = copied.find(characterWithoutWidth); place != copied.npos;
         place = copied.find(characterWithoutWidth, place)) {
        copied.erase(place, characterWithoutWidth.size());
    }
    return copied;
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
    const std::string_view before(holder.text.data(),
                                  position + firstChunk().position - holder.position);
    return _charactersBeforeChunk[index] + charactersIn(before);
}

std::size_t LogText::positionAfter(std::size_t characters) const {
    charactersBefore(size()); // makes sure that every chunk is counted
    const auto next =
        std::upper_bound(_charactersBeforeChunk.begin(), _charactersBeforeChunk.end(), characters);
    const auto index = static_cast<std::size_t>(next - _charactersBeforeChunk.begin()) - 1;
    const Chunk& holder = chunk(index);
    return holder.position - firstChunk().position +
           bytesOfCharacters(holder.text, characters - _charactersBeforeChunk[index]);
}

std::string shownRow(std::string_view row) {
    const bool endsWithReturn = row.ends_with('\r');
    row.remove_suffix(endsWithReturn ? 1 : 0);
    std::string shown;
    do {
        const std::size_t zeros = std::min(row.find('\0'), row.size());
        const std::size_t end = std::min(row.find_first_not_of('\0', zeros), row.size());
        const bool endsWord = end == row.size() || row[end] == ' ';
        shown += visibleText(row.substr(0, endsWord ? zeros : end), Tabs::kept);
        for (std::size_t zero = zeros; endsWord && zero < end; ++zero) {
            shown += characterWithoutWidth;
        }
        row.remove_prefix(end);
    } while (!row.empty());
    shown += endsWithReturn ? " " : "";
    return shown;
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
