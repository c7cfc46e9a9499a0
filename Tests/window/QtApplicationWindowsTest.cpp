// The windows and views of the application as the core sees them.

#include "platform/qt/QtApplicationWindows.h"

#include "MainWindowFixture.h"
#include "contracts/ApplicationWindowsContract.h"
#include "contracts/ViewContract.h"
#include "platform/qt/DelegatingWindow.h"
#include "platform/qt/QtView.h"

#include <QWidget>
#include <memory>

namespace kx {

namespace {

class WindowOfDelegate final : public QWidget, public DelegatingWindow {
public:
    explicit WindowOfDelegate(const WindowDelegate* delegate)
        : _delegate(delegate) {}
    const WindowDelegate* windowDelegate() const override { return _delegate; }

private:
    const WindowDelegate* _delegate;
};

class QtApplicationWindowsTrait {
public:
    const ApplicationWindows& windows() { return _windows; }
    void addWindow(const WindowDelegate* delegate) {
        _widgets.push_back(std::make_unique<WindowOfDelegate>(delegate));
    }

private:
    std::vector<std::unique_ptr<QWidget>> _widgets;
    QtApplicationWindows _windows;
};

class QtViewTrait {
public:
    View& view() { return _view; }

private:
    QWidget _widget;
    QtView _view{_widget};
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, ApplicationWindowsContract, QtApplicationWindowsTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Qt, ViewContract, QtViewTrait);

TEST(QtView, WhatLiesInAHiddenViewKeepsItsOwnSetting) {
    QWidget outer;
    QWidget inner(&outer);
    outer.show();
    QtView outerView(outer);
    const QtView innerView(inner);
    hideView(outerView);
    EXPECT_FALSE(inner.isVisible());
    EXPECT_FALSE(innerView.isHidden());
}

TEST(QtApplicationWindows, AWidgetOfAnotherKindHasNoDelegate) {
    const QWidget plain;
    EXPECT_EQ(QtApplicationWindows().delegates(), std::vector<const WindowDelegate*>{nullptr});
}

TEST_F(MainWindowTest, TheControllerIsTheDelegateOfItsWindowWhileItIsConnected) {
    const QtApplicationWindows windows;
    EXPECT_EQ(window.windowDelegate(), &controller);
    EXPECT_EQ(instanceCount<KXConfigAppDelegate>(windows), 1U);
    window.disconnectActions();
    EXPECT_EQ(instanceCount<KXConfigAppDelegate>(windows), 0U);
}

} // namespace kx
