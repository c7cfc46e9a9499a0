// A label for sentences of changing length, with room for two lines from the start: what stands
// below it does not jump when a text comes or goes. Longer texts make it grow.
//
// Its height follows from its width, but it does not tell layouts so: a scroll area gives a content
// that says so the room that it would like to have, and not the little that it could do with.

#pragma once

#include "platform/qt/SpokenLabel.h"

namespace kx {

class NoteLabel final : public SpokenLabel {
    Q_OBJECT

public:
    explicit NoteLabel(QWidget* parent = nullptr);

    bool hasHeightForWidth() const override { return false; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
};

} // namespace kx
