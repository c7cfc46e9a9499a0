#include "platform/qt/QtTextView.h"

#include "platform/qt/QtText.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QScrollBar>
#include <QTextCursor>

namespace kx {

QtTextView::QtTextView(QPlainTextEdit& textEdit)
    : _textEdit(textEdit) {
    textEdit.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    textEdit.setTabStopDistance(4 * QFontMetricsF(textEdit.font()).horizontalAdvance(' '));
    textEdit.setUndoRedoEnabled(false);
}

void QtTextView::setString(std::string_view text) {
    _textEdit.setPlainText(qtText(text));
}

void QtTextView::insertAtEnd(std::string_view text) {
    // A cursor of our own: the view's cursor is the user's selection.
    QTextCursor end(_textEdit.document());
    end.movePosition(QTextCursor::End);
    end.insertText(qtText(text));
}

void QtTextView::scrollEndToVisible() {
    QScrollBar* bar = _textEdit.verticalScrollBar();
    bar->setValue(bar->maximum());
}

} // namespace kx
