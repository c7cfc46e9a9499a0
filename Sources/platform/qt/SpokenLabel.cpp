#include "platform/qt/SpokenLabel.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QTimerEvent>

namespace kx {

namespace {

// Longer than the pause between two keys of a person who types.
constexpr int millisecondsOfRest = 500;

class SpokenLabelAccessible final : public QAccessibleWidget {
public:
    explicit SpokenLabelAccessible(SpokenLabel& label)
        : QAccessibleWidget(&label, QAccessible::Notification)
        , _label(label) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? _label.text() : QAccessibleWidget::text(kind);
    }

private:
    SpokenLabel& _label;
};

QAccessibleInterface* makeSpokenLabelAccessible(const QString& /*className*/, QObject* object) {
    auto* const label = qobject_cast<SpokenLabel*>(object);
    return label == nullptr ? nullptr : new SpokenLabelAccessible(*label);
}

} // namespace

SpokenLabel::SpokenLabel(QWidget* parent)
    : QLabel(parent) {
    QAccessible::installFactory(&makeSpokenLabelAccessible);
    setTextFormat(Qt::PlainText);
}

void SpokenLabel::say(const QString& text) {
    if (text == this->text()) {
        return;
    }
    setText(text);
    _rest.stop();
    if (QAccessible::isActive() && !text.isEmpty()) {
        _rest.start(millisecondsOfRest, this);
    }
}

void SpokenLabel::timerEvent(QTimerEvent* event) {
    if (event->timerId() != _rest.timerId()) {
        QLabel::timerEvent(event);
        return;
    }
    _rest.stop();
    if (isVisible() && !text().isEmpty()) {
        QAccessibleEvent appeared(this, QAccessible::ObjectShow);
        QAccessible::updateAccessibility(&appeared);
    }
}

} // namespace kx
