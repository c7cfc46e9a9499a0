// A label whose text a screen reader says when it changes, wherever the keyboard is.
//
// To assistive technology it is a notification, and each text that has stood for half a second is
// announced as one that has just appeared: a text that changes at every key that is typed is said
// when the typing rests. An empty text is not announced. While nobody listens nothing wakes up.
//
// Main thread only.

#pragma once

#include <QBasicTimer>
#include <QLabel>

namespace kx {

class SpokenLabel : public QLabel {
    Q_OBJECT

public:
    explicit SpokenLabel(QWidget* parent = nullptr);

    // Shows the text, as it is and not as markup. A text that stands there already is not said
    // again, unless it has been taken away in between.
    void say(const QString& text);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    QBasicTimer _rest; // runs until the text has stood long enough
};

} // namespace kx
