// A label whose text a screen reader says when it changes, wherever the keyboard focus is.
//
// Assistive technology sees the label as a notification. Each text that has stood for half a second
// is announced as a new notification, so a text that changes at every key is said when the typing
// rests. An empty text is not announced. While no assistive technology listens, nothing wakes up.
//
// Main thread only.

#pragma once

#include <QBasicTimer>
#include <QLabel>

namespace kx {

class AnnouncedLabel : public QLabel {
    Q_OBJECT

public:
    explicit AnnouncedLabel(QWidget* parent = nullptr);

    // Shows the text as it is and not as markup. A text that is shown already is not said again,
    // unless it was removed in between.
    void say(const QString& text);

    // Whether the text that is said next means trouble. A screen reader then says a word for that
    // in front of the text. Set it before the text.
    virtual void setMeansTrouble(bool meansTrouble) { _meansTrouble = meansTrouble; }
    bool meansTrouble() const { return _meansTrouble; }

    // The text as a screen reader says it.
    QString spokenText() const;

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    bool _meansTrouble = false;
    QBasicTimer _rest; // runs until the text has stood long enough
};

} // namespace kx
