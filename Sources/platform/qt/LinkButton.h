// A button that looks like a link in a text and is no higher than its line. Beside a label of the
// same font, with their upper edges in line, both texts stand on one baseline.
//
// Main thread only.

#pragma once

#include <QPushButton>

namespace kx {

class LinkButton final : public QPushButton {
    Q_OBJECT

public:
    explicit LinkButton(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace kx
