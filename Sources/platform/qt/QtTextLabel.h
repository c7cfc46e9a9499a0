// A text label over a label of the window. A screen reader says its changes. The widget must
// outlive it.

#pragma once

#include "Outlets.h"
#include "platform/qt/AnnouncedLabel.h"

namespace kx {

enum class EmptyLabel {
    keepsItsPlace,
    isHidden, // takes no place when empty, for labels that are seldom needed
};

class QtTextLabel final : public TextLabel {
public:
    explicit QtTextLabel(AnnouncedLabel& label, EmptyLabel empty = EmptyLabel::keepsItsPlace);

    void setMeansTrouble(bool meansTrouble) override;
    void setStringValue(std::string_view text) override;

private:
    AnnouncedLabel& _label;
    EmptyLabel _empty;
};

} // namespace kx
