#include "platform/qt/FindBar.h"

#include "platform/qt/LogSearch.h"
#include "platform/qt/QtText.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPen>
#include <QToolButton>

namespace kx {

namespace {

// More than a person goes through.
constexpr std::size_t mostMatches = 1000;

// A cross in the colour of texts on buttons, because the style's own sign is hard to see in a dark
// window.
class CrossButton final : public QToolButton {
public:
    using QToolButton::QToolButton;

protected:
    void paintEvent(QPaintEvent* event) override {
        QToolButton::paintEvent(event);
        QRectF cross(QPointF(), QSizeF(iconSize()) / 2);
        cross.moveCenter(QRectF(rect()).center());
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(QPalette::ButtonText), 1.5));
        painter.drawLine(cross.topLeft(), cross.bottomRight());
        painter.drawLine(cross.bottomLeft(), cross.topRight());
    }
};

QToolButton* addButton(QWidget& bar, QToolButton* button, const char* objectName,
                       const QString& name, Qt::ArrowType arrow) {
    button->setObjectName(objectName);
    button->setAccessibleName(name);
    button->setToolTip(name);
    button->setArrowType(arrow);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    bar.layout()->addWidget(button);
    return button;
}

} // namespace

FindBar::FindBar(LogTextView& log, QWidget* parent)
    : QWidget(parent)
    , _log(log)
    , _field(*new QLineEdit(this))
    , _result(*new AnnouncedLabel(this))
    , _escape(*new QShortcut(Qt::Key_Escape, parent)) {
    setObjectName("logFindBar");
    _field.setObjectName("logFindField");
    _field.setClearButtonEnabled(true);
    _result.setObjectName("logFindResult");
    auto* const label = new QLabel(localizedQtText("Find:"), this);
    label->setBuddy(&_field);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 4, 0, 0);
    row->addWidget(label);
    row->addWidget(&_field, 2);
    const QToolButton* const previous =
        addButton(*this, new QToolButton(this), "logFindPreviousButton",
                  localizedQtText("Find Previous"), Qt::UpArrow);
    const QToolButton* const next = addButton(*this, new QToolButton(this), "logFindNextButton",
                                              localizedQtText("Find Next"), Qt::DownArrow);
    row->addWidget(&_result, 1);
    QToolButton* const closer = addButton(*this, new CrossButton(this), "logFindCloseButton",
                                          localizedQtText("Close"), Qt::NoArrow);
    connect(&_field, &QLineEdit::textEdited, this, &FindBar::findTyped);
    connect(previous, &QToolButton::clicked, this, &FindBar::findPrevious);
    connect(next, &QToolButton::clicked, this, &FindBar::findNext);
    connect(closer, &QToolButton::clicked, this, &FindBar::close);
    _escape.setContext(Qt::WidgetWithChildrenShortcut);
    _escape.setEnabled(false);
    connect(&_escape, &QShortcut::activated, this, &FindBar::close);
    hide();
}

void FindBar::open() {
    const LogRange selection = _log.selection();
    const LogText& text = _log.text();
    if (selection.from < selection.to && text.rowAt(selection.from) == text.rowAt(selection.to)) {
        _field.setText(_log.selectedText());
    }
    _result.clear();
    _escape.setEnabled(true);
    show();
    _field.setFocus();
    _field.selectAll();
}

void FindBar::close() {
    _escape.setEnabled(false);
    hide();
    _log.setFocus();
}

void FindBar::findNext() {
    findFrom(_log.selection().to, findForward, 0, localizedQtText("From the beginning"));
}

void FindBar::findPrevious() {
    findFrom(_log.selection().from, findBackward, _log.text().size(),
             localizedQtText("From the end"));
}

void FindBar::findTyped() {
    const std::size_t start = _log.selection().from;
    if (_field.text().isEmpty()) {
        _log.select(start, start);
        _result.clear();
        return;
    }
    findFrom(start, findForward, 0, localizedQtText("From the beginning"));
}

void FindBar::findFrom(std::size_t start, Search search, std::size_t otherEnd,
                       const QString& fromOtherEnd) {
    if (_field.text().isEmpty()) {
        open();
        return;
    }
    QString result;
    auto match = search(_log.text(), _field.text(), start);
    if (!match.has_value()) {
        result = fromOtherEnd;
        match = search(_log.text(), _field.text(), otherEnd);
    }
    if (match.has_value()) {
        _log.select(match->from, match->to);
        result += (result.isEmpty() ? "" : " – ") + textOfCount();
    } else {
        result = localizedQtText("Not found");
    }
    _result.say(result);
}

QString FindBar::textOfCount() {
    if (_counted != _field.text() || _countedSize != _log.text().size()) {
        _counted = _field.text();
        _countedSize = _log.text().size();
        _matches = countMatches(_log.text(), _counted, mostMatches);
    }
    const auto matches = static_cast<long long>(_matches);
    return qtText(_matches == mostMatches ? localizedText("%d matches or more", {matches})
                  : _matches == 1         ? localizedText("1 match")
                                          : localizedText("%d matches", {matches}));
}

void FindBar::keyPressEvent(QKeyEvent* event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn || !_field.hasFocus()) {
        QWidget::keyPressEvent(event);
    } else if (event->modifiers().testFlag(Qt::ShiftModifier)) {
        findPrevious();
    } else {
        findNext();
    }
}

} // namespace kx
