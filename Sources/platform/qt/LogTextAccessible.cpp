#include "platform/qt/LogTextAccessible.h"

#include "platform/qt/LogTextView.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <algorithm>

namespace kx {

namespace {

class LogTextAccessible final : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    explicit LogTextAccessible(LogTextView& view)
        : QAccessibleWidget(&view, QAccessible::EditableText)
        , _view(view) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface*>(this)
                                                  : QAccessibleWidget::interface_cast(type);
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        state.multiLine = true;
        state.selectableText = true;
        return state;
    }

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? _view.toPlainText() : QAccessibleWidget::text(kind);
    }

    void selection(int index, int* start, int* end) const override {
        const bool isThere = index < selectionCount();
        *start = isThere ? offsetOf(_view.selection().from) : 0;
        *end = isThere ? offsetOf(_view.selection().to) : 0;
    }
    int selectionCount() const override {
        return _view.selection().from < _view.selection().to ? 1 : 0;
    }
    void addSelection(int start, int end) override { setSelection(0, start, end); }
    void removeSelection(int /*index*/) override { _view.select(_view.caret(), _view.caret()); }
    void setSelection(int /*index*/, int start, int end) override {
        _view.select(positionOf(start), positionOf(end));
    }

    int cursorPosition() const override { return offsetOf(_view.caret()); }
    void setCursorPosition(int offset) override {
        _view.select(positionOf(offset), positionOf(offset));
    }

    QString text(int start, int end) const override {
        return _view.textBetween(positionOf(start), positionOf(end));
    }
    QString textBeforeOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                             int* end) const override {
        const std::size_t from = rangeAt(positionOf(offset), type).from;
        return from == 0 ? nothing(start, end) : textOf(rangeAt(from - 1, type), start, end);
    }
    QString textAtOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                         int* end) const override {
        return textOf(rangeAt(positionOf(offset), type), start, end);
    }
    QString textAfterOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                            int* end) const override {
        const std::size_t to = rangeAt(positionOf(offset), type).to;
        return to >= _view.text().size() ? nothing(start, end)
                                         : textOf(rangeAt(to, type), start, end);
    }
    int characterCount() const override { return offsetOf(_view.text().size()); }

    QRect characterRect(int offset) const override {
        const QRect place = _view.rectOf(positionOf(offset));
        return {_view.viewport()->mapToGlobal(place.topLeft()), place.size()};
    }
    int offsetAtPoint(const QPoint& point) const override {
        return offsetOf(_view.positionAt(_view.viewport()->mapFromGlobal(point)));
    }
    void scrollToSubstring(int start, int end) override {
        _view.showPosition(positionOf(end));
        _view.showPosition(positionOf(start));
    }
    QString attributes(int /*offset*/, int* start, int* end) const override {
        *start = 0;
        *end = characterCount();
        return {};
    }

private:
    int offsetOf(std::size_t position) const {
        return static_cast<int>(_view.text().charactersBefore(position));
    }
    std::size_t positionOf(int offset) const {
        return _view.text().positionAfter(static_cast<std::size_t>(std::max(0, offset)));
    }

    LogRange rangeAt(std::size_t position, QAccessible::TextBoundaryType type) const {
        const LogText& text = _view.text();
        switch (type) {
        case QAccessible::CharBoundary:
            return {position, movedPosition(text, position, LogCaretMovement::nextCharacter)};
        case QAccessible::WordBoundary:
            return unitAround(text, position, LogSelectionUnit::word);
        case QAccessible::SentenceBoundary:
        case QAccessible::ParagraphBoundary:
        case QAccessible::LineBoundary:
            return unitAround(text, position, LogSelectionUnit::line);
        case QAccessible::NoBoundary:
            break;
        }
        return {0, text.size()};
    }

    QString textOf(LogRange range, int* start, int* end) const {
        *start = offsetOf(range.from);
        *end = offsetOf(range.to);
        return _view.textBetween(range.from, range.to);
    }

    static QString nothing(int* start, int* end) {
        *start = *end = -1;
        return {};
    }

    LogTextView& _view;
};

QAccessibleInterface* makeLogTextAccessible(const QString& /*className*/, QObject* object) {
    auto* const view = qobject_cast<LogTextView*>(object);
    return view == nullptr ? nullptr : new LogTextAccessible(*view);
}

int offsetOf(const LogTextView& view, std::size_t position) {
    return static_cast<int>(view.text().charactersBefore(position));
}

} // namespace

void installLogTextAccessible() {
    QAccessible::installFactory(&makeLogTextAccessible);
}

void announceInsertion(LogTextView& view, std::size_t from, std::size_t to) {
    if (QAccessible::isActive() && from < to) {
        QAccessibleTextInsertEvent event(&view, offsetOf(view, from), view.textBetween(from, to));
        QAccessible::updateAccessibility(&event);
    }
}

void announceRemoval(LogTextView& view, std::size_t to) {
    if (QAccessible::isActive() && to > 0) {
        QAccessibleTextRemoveEvent event(&view, 0, view.textBetween(0, to));
        QAccessible::updateAccessibility(&event);
    }
}

void announceSelection(LogTextView& view) {
    if (QAccessible::isActive()) {
        const LogRange selection = view.selection();
        if (selection.from < selection.to) {
            QAccessibleTextSelectionEvent event(&view, offsetOf(view, selection.from),
                                                offsetOf(view, selection.to));
            QAccessible::updateAccessibility(&event);
        }
        QAccessibleTextCursorEvent event(&view, offsetOf(view, view.caret()));
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace kx
