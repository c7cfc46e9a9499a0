// A button of the window. The widget must outlive it.

#pragma once

#include "Outlets.h"

#include <QKeySequence>
#include <QString>

class QAbstractButton;

namespace kx {

// Sets the tool tip of a button, a sentence and the key that presses the button, and its
// description for a screen reader, the sentence alone. Every character of the sentence is shown
// unchanged.
void describeButton(QAbstractButton& button, const QString& sentence, const QKeySequence& key);

class QtButton final : public Button {
public:
    explicit QtButton(QAbstractButton& button);

    // The key that the tool tip names. Set it before the first description.
    void setKey(const QKeySequence& key) { _key = key; }

    void setDescription(std::string_view text) override;

private:
    QAbstractButton& _button;
    QKeySequence _key;
};

} // namespace kx
