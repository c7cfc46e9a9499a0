#include "platform/qt/LogSearch.h"

#include "platform/qt/QtText.h"

namespace kx {

namespace {

std::size_t bytesIn(QStringView text) {
    return static_cast<std::size_t>(text.toUtf8().size());
}

// A match may lie across two pieces: this much of the one is searched together with the other.
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
    QString before;
    while (start < text.size()) {
        const LogText::Piece piece = text.pieceAt(start);
        const std::size_t end = piece.position + piece.text.size();
        const std::size_t position = start - bytesIn(before);
        const QString searched = before + qtText(piece.text.substr(start - piece.position));
        const qsizetype index = searched.indexOf(sought, 0, Qt::CaseInsensitive);
        if (index >= 0) {
            return rangeIn(searched, position, index, sought.size());
        }
        before = tailOf(searched, sought.size() - 1);
        start = end;
    }
    return std::nullopt;
}

std::optional<LogRange> findBackward(const LogText& text, const QString& sought, std::size_t end) {
    QString after;
    while (end > 0) {
        const LogText::Piece piece = text.pieceAt(end - 1);
        const QString searched = qtText(piece.text.substr(0, end - piece.position)) + after;
        const qsizetype index = searched.lastIndexOf(sought, Qt::CaseInsensitive);
        if (index >= 0) {
            return rangeIn(searched, piece.position, index, sought.size());
        }
        after = headOf(searched, sought.size() - 1);
        end = piece.position;
    }
    return std::nullopt;
}

} // namespace kx
