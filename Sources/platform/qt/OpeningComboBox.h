// A combo box that says when its list is about to open, so that the list can be brought up to date.
//
// A press on it while it is disabled says so as well: what the list lacked may be there by now.
// When whoever hears it enables the combo box, the list opens.

#pragma once

#include <QComboBox>

namespace kx {

class OpeningComboBox final : public QComboBox {
    Q_OBJECT

public:
    using QComboBox::QComboBox;

    // Does not open when nobody may choose any more.
    void showPopup() override;

signals:
    // The items may be changed from inside.
    void aboutToOpen();

protected:
    bool event(QEvent* event) override;
};

} // namespace kx
