#include "platform/qt/AnnouncedLabel.h"

#include "platform/qt/QtText.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QTimerEvent>

namespace kx {

namespace {

// Longer than the pause between two keys of a person who types.
constexpr int millisecondsOfRest = 500;

class AnnouncedLabelAccessible final : public QAccessibleWidget {
public:
    explicit AnnouncedLabelAccessible(AnnouncedLabel& label)
        : QAccessibleWidget(&label, QAccessible::Notification)
        , _label(label) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? _label.spokenText() : QAccessibleWidget::text(kind);
    }

private:
    AnnouncedLabel& _label;
};

QAccessibleInterface* makeAnnouncedLabelAccessible(const QString& /*className*/, QObject* object) {
    auto* const label = qobject_cast<AnnouncedLabel*>(object);
    return label == nullptr ? nullptr : new AnnouncedLabelAccessible(*label);
}

} // namespace

AnnouncedLabel::AnnouncedLabel(QWidget* parent)
    : QLabel(parent) {
    QAccessible::installFactory(&makeAnnouncedLabelAccessible);
    setTextFormat(Qt::PlainText);
}

void AnnouncedLabel::say(const QString& text) {
    if (text == this->text()) {
        return;
    }
    setText(text);
    _rest.stop();
    if (QAccessible::isActive() && !text.isEmpty()) {
        _rest.start(millisecondsOfRest, this);
    }
}

QString AnnouncedLabel::spokenText() const {
    return _meansTrouble && !text().isEmpty() ? localizedQtText("Attention:") + ' ' + text()
                                              : text();
}

void AnnouncedLabel::timerEvent(QTimerEvent* event) {
    if (event->timerId() != _rest.timerId()) {
        QLabel::timerEvent(event);
        return;
    }
    _rest.stop();
    if (isVisible()) {
        QAccessibleEvent appeared(this, QAccessible::ObjectShow);
        QAccessible::updateAccessibility(&appeared);
    }
}

} // namespace kx
