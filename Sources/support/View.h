// Any part of a window, as far as it can be hidden. Main thread only.

#pragma once

namespace kx {

class View {
public:
    virtual ~View() = default;

    // A hidden view takes no room and no input; what lies in it is hidden with it and keeps its own
    // setting.
    virtual void setHidden(bool hidden) = 0;

    // The view's own setting, whatever it lies in.
    virtual bool isHidden() const = 0;
};

inline void hideView(View& view) {
    view.setHidden(true);
}

inline void unhideView(View& view) {
    view.setHidden(false);
}

} // namespace kx
