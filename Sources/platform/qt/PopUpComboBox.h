// A combo box whose list keeps the key that closes it.
//
// Qt closes an open list when a key is announced, before the key is sent. Where the compositor
// gives all keys to the window, as on Wayland, the key then goes to the combo box and on to its
// window: Return would choose an item and also press the default button. This combo box drops such
// a key until it is released.
//
// Main thread only.

#pragma once

#include <QComboBox>
#include <optional>

namespace kx {

class PopUpComboBox : public QComboBox {
    Q_OBJECT

public:
    using QComboBox::QComboBox;

    void showPopup() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void noteRelease(const QKeyEvent& event);

    std::optional<int> _keyOfList; // the held key that was announced to the list last
};

} // namespace kx
