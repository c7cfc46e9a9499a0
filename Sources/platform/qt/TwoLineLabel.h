// A label for sentences of changing length. It has room for two lines from the start, so that the
// controls below it do not move when a text comes or goes. Longer texts make it grow.
//
// Its height follows from its width, but it does not tell layouts so. If it did, a scroll
// area would give its content the preferred height, and never the smaller height that is enough.

#pragma once

#include "platform/qt/AnnouncedLabel.h"

namespace kx {

class TwoLineLabel final : public AnnouncedLabel {
    Q_OBJECT

public:
    explicit TwoLineLabel(QWidget* parent = nullptr);

    bool hasHeightForWidth() const override { return false; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
};

} // namespace kx
