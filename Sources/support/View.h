// Any part of a window that can be hidden. Main thread only.

#pragma once

namespace kx {

class View {
public:
    virtual ~View() = default;

    // A hidden view takes no room and no input. The views in it are hidden with it and keep their
    // own settings.
    virtual void setHidden(bool hidden) = 0;

    // The view's own setting. Views around it do not count.
    virtual bool isHidden() const = 0;
};

inline void hideView(View& view) {
    view.setHidden(true);
}

inline void unhideView(View& view) {
    view.setHidden(false);
}

} // namespace kx
