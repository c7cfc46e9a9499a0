// A view over a widget, which must outlive it. Main thread only.

#pragma once

#include "support/View.h"

#include <QWidget>

namespace kx {

class QtView final : public View {
public:
    explicit QtView(QWidget& widget)
        : _widget(widget) {}

    void setHidden(bool hidden) override { _widget.setHidden(hidden); }
    bool isHidden() const override { return _widget.isHidden(); }

private:
    QWidget& _widget;
};

} // namespace kx
