// A combo box that tells when its list is about to open, so that the list can be brought up to
// date.
//
// A press on the disabled combo box is told as well, because the missing items may be there by now.
// When the receiver of the signal then enables the combo box, the list opens.

#pragma once

#include "platform/qt/PopUpComboBox.h"

namespace kx {

class RefreshedComboBox final : public PopUpComboBox {
    Q_OBJECT

public:
    using PopUpComboBox::PopUpComboBox;

    // Does not open the list when the receiver of aboutToOpen() has disabled the combo box.
    void showPopup() override;

signals:
    // Sent before the list opens. The receiver may change the items.
    void aboutToOpen();

protected:
    bool event(QEvent* event) override;
};

} // namespace kx
