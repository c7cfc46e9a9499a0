#include "platform/qt/LogSearch.h"

#include "platform/qtcore/QtText.h"

namespace kx {

namespace {

std::size_t bytesIn(QStringView text) {
    return static_cast<std::size_t>(text.toUtf8().size());
}

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

// The end of one piece that is searched together with the next one, because a match may lie across
// two pieces.
QString tailOf(const QString& text, qsizetype units) {
    QString tail = text.right(units);
    return !tail.isEmpty() && tail.front().isLowSurrogate() ? tail.mid(1) : tail;
}

QString headOf(const QString& text, qsizetype units) {
    QString head = text.left(units);
    return !head.isEmpty() && head.back().isHighSurrogate() ? head.chopped(1) : head;
}

LogRange rangeIn(const QString& searched, std::size_t position, qsizetype index, qsizetype length) {
    const std::size_t from = position + bytesIn(QStringView(searched).left(index));
    return {from, from + bytesIn(QStringView(searched).mid(index, length))};
}

} // namespace

std::optional<LogRange> findForward(const LogText& text, const QString& sought, std::size_t start) {
    const QString wanted = folded(sought);
    QString before;
    while (start < text.size()) {
        const LogText::Piece piece = text.pieceAt(start);
        const std::size_t end = piece.position + piece.text.size();
        const std::size_t position = start - bytesIn(before);
        const QString searched = before + qtText(piece.text.substr(start - piece.position));
        const qsizetype index = folded(searched).indexOf(wanted);
        if (index >= 0) {
            return rangeIn(searched, position, index, sought.size());
        }
        before = tailOf(searched, sought.size() - 1);
        start = end;
    }
    return std::nullopt;
}

std::optional<LogRange> findBackward(const LogText& text, const QString& sought, std::size_t end) {
    const QString wanted = folded(sought);
    QString after;
    while (end > 0) {
        const LogText::Piece piece = text.pieceAt(end - 1);
        const QString searched = qtText(piece.text.substr(0, end - piece.position)) + after;
        const qsizetype index = folded(searched).lastIndexOf(wanted);
        if (index >= 0) {
            return rangeIn(searched, piece.position, index, sought.size());
        }
        after = headOf(searched, sought.size() - 1);
        end = piece.position;
    }
    return std::nullopt;
}

} // namespace kx
