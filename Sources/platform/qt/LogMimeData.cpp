#include "platform/qt/LogMimeData.h"

#include "platform/qt/QtText.h"

#include <algorithm>

namespace kx {

namespace {

constexpr const char* plainText = "text/plain";

} // namespace

namespace {

// Goes piece by piece, so that no second copy of a long text stands beside the one in Qt's form.
QString textInPieces(const LogText& text, LogRange range,
                     std::string (LogText::*textBetween)(std::size_t, std::size_t) const) {
    QString result;
    result.reserve(static_cast<qsizetype>(range.to - range.from));
    while (range.from < range.to) {
        const LogText::Piece piece = text.pieceAt(range.from);
        const std::size_t end = std::min(piece.position + piece.text.size(), range.to);
        result += qtText((text.*textBetween)(range.from, end));
        range.from = end;
    }
    return result;
}

} // namespace

QString shownLogText(const LogText& text, LogRange range) {
    return textInPieces(text, range, &LogText::shownText);
}

QString copiedLogText(const LogText& text, LogRange range) {
    return textInPieces(text, range, &LogText::copiedText);
}

LogMimeData::LogMimeData(const LogText& text, LogRange range)
    : _excerpt(text.excerpt(range.from, range.to))
    , _range{range.from - _excerpt.position, range.to - _excerpt.position} {}

QStringList LogMimeData::formats() const {
    return {plainText};
}

bool LogMimeData::hasFormat(const QString& format) const {
    return format == plainText;
}

QVariant LogMimeData::retrieveData(const QString& format, QMetaType /*type*/) const {
    return hasFormat(format) ? QVariant(copiedLogText(_excerpt.text, _range)) : QVariant();
}

} // namespace kx
