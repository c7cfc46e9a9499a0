// A text label over a label of the window, whose changes a screen reader says. The widget must
// outlive it.

#pragma once

#include "Outlets.h"
#include "platform/qt/SpokenLabel.h"

namespace kx {

enum class EmptyLabel {
    keepsItsPlace,
    isHidden, // and takes no place; for what there is seldom something to say about
};

class QtTextLabel final : public TextLabel {
public:
    explicit QtTextLabel(SpokenLabel& label, EmptyLabel empty = EmptyLabel::keepsItsPlace);

    void setStringValue(std::string_view text) override;

private:
    SpokenLabel& _label;
    EmptyLabel _empty;
};

} // namespace kx
