#include "platform/qt/LogSearch.h"

#include "platform/qt/QtText.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace kx {

namespace {

// The text with every letter in the case in which letters are compared, and with the same number of
// units. The toolkit can compare in either case by itself. But Qt 6.8 then finds nothing when the
// sought text has a character of two units and the searched text is long.
QString folded(QString text) {
    QChar* const units = text.data();
    const qsizetype size = text.size();
    for (qsizetype i = 0; i < size; ++i) {
        const char16_t unit = units[i].unicode();
        if (unit < 0x80) { // nearly all of a log: no table is needed
            if (unit >= u'A' && unit <= u'Z') {
                units[i] = QChar(unit - u'A' + u'a');
            }
        } else if (QChar::isHighSurrogate(unit) && i + 1 < size && units[i + 1].isLowSurrogate()) {
            const char32_t character =
                QChar::toCaseFolded(QChar::surrogateToUcs4(units[i], units[i + 1]));
            units[i] = QChar::highSurrogate(character);
            units[++i] = QChar::lowSurrogate(character);
        } else {
            units[i] = units[i].toCaseFolded();
        }
    }
    return text;
}

bool continuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

// A part of the log, and the text that a person sees of it. Both have as many units, so a place in
// one tells the place in the other.
class SearchedPart {
public:
    SearchedPart(const LogText& log, std::size_t from, std::size_t to)
        : _from(from)
        , _shown(folded(qtText(log.shownText(from, to)))) {
        while (from < to) {
            const LogText::Piece piece = log.pieceAt(from);
            _text += piece.text.substr(from - piece.position, to - from);
            from = piece.position + piece.text.size();
        }
    }

    const QString& shown() const { return _shown; }

    LogRange rangeOf(qsizetype unit, qsizetype units) const {
        const std::size_t from = bytesOfCharacters(_text, static_cast<std::size_t>(unit));
        const std::string_view rest = std::string_view(_text).substr(from);
        const std::size_t length = bytesOfCharacters(rest, static_cast<std::size_t>(units));
        return {_from + from, _from + from + length};
    }

    // The number of units in front of a position.
    qsizetype unitsBefore(std::size_t position) const {
        return static_cast<qsizetype>(
            charactersIn(std::string_view(_text).substr(0, position - _from)));
    }

    // A position of a whole character with at least so many bytes behind it, or in front of it.
    std::size_t positionBefore(std::size_t bytes) const {
        std::size_t index = _text.size() - std::min(bytes, _text.size());
        while (index > 0 && continuesCharacter(_text[index])) {
            --index;
        }
        return _from + index;
    }
    std::size_t positionBehind(std::size_t bytes) const {
        std::size_t index = std::min(bytes, _text.size());
        while (index < _text.size() && continuesCharacter(_text[index])) {
            ++index;
        }
        return _from + index;
    }

private:
    std::size_t _from;
    QString _shown;
    std::string _text;
};

// The most bytes of a match: a unit takes at most three, and a pair of units takes four. Parts that
// are searched one after the other overlap by so many, because a match may lie across them.
std::size_t overlapFor(const QString& sought) {
    return static_cast<std::size_t>(sought.size()) * 3;
}

} // namespace

std::optional<LogRange> findForward(const LogText& text, const QString& sought, std::size_t start) {
    const QString wanted = folded(sought);
    std::size_t from = start;
    while (start < text.size()) {
        const LogText::Piece piece = text.pieceAt(start);
        const std::size_t end = piece.position + piece.text.size();
        const SearchedPart part(text, from, end);
        const qsizetype index = part.shown().indexOf(wanted);
        if (index >= 0) {
            return part.rangeOf(index, sought.size());
        }
        from = part.positionBefore(overlapFor(sought));
        start = end;
    }
    return std::nullopt;
}

std::optional<LogRange> findBackward(const LogText& text, const QString& sought, std::size_t end) {
    const QString wanted = folded(sought);
    std::size_t to = end;
    while (end > 0) {
        const LogText::Piece piece = text.pieceAt(end - 1);
        const SearchedPart part(text, piece.position, to);
        const qsizetype index = part.shown().lastIndexOf(wanted);
        if (index >= 0) {
            return part.rangeOf(index, sought.size());
        }
        to = part.positionBehind(overlapFor(sought));
        end = piece.position;
    }
    return std::nullopt;
}

std::size_t countMatches(const LogText& text, const QString& sought, std::size_t most) {
    const QString wanted = folded(sought);
    std::size_t matches = 0;
    std::size_t from = 0;
    std::size_t start = 0;
    while (start < text.size() && matches < most) {
        const LogText::Piece piece = text.pieceAt(start);
        const std::size_t end = piece.position + piece.text.size();
        const SearchedPart part(text, from, end);
        // Matches that end in the overlap were counted with the part before.
        const qsizetype overlap = part.unitsBefore(start);
        qsizetype index = std::max<qsizetype>(0, overlap - wanted.size() + 1);
        while ((index = part.shown().indexOf(wanted, index)) >= 0 && matches < most) {
            ++matches;
            index += wanted.size();
        }
        from = part.positionBefore(overlapFor(sought));
        start = end;
    }
    return matches;
}

} // namespace kx
