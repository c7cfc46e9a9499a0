// The main window: the controls of Resources/MainWindow.ui, wired to the controller.
//
// It owns every control, the adapters through which the controller uses them, and the table that
// feeds the parameter table. It makes none of the application's decisions. It adds only what a
// desktop expects: keyboard, menus, empty states.
//
// Threading: main thread only. Ownership: the window does not own the controller. Call
// disconnectActions() before the controller is destroyed.

#pragma once

#include "Outlets.h"
#include "conversation/RequestOutcome.h"
#include "platform/qt/DelegatingWindow.h"

#include <QEvent>
#include <QMainWindow>
#include <deque>
#include <memory>
#include <optional>

namespace kx {

class FindBar;
class KXConfigAppDelegate;

namespace Ui {
class MainWindow;
}

class MainWindow final : public QMainWindow, public DelegatingWindow {
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    // The controls, in the form that the controller knows. They live as long as the window.
    MainWindowOutlets outlets();

    // After this, the user's actions run the controller's actions, including the closing of the
    // window, and the edit row shows the controller's values.
    void connectActions(KXConfigAppDelegate& controller);

    // After this, nothing reaches the controller.
    void disconnectActions();

    // The controller, while it is connected.
    const WindowDelegate* windowDelegate() const override;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct Controls;
    using Action = void (KXConfigAppDelegate::*)();

    void connectButtons();
    void connectPopUps();
    void connectMenus();
    void connectTables();
    void giveTextsOfButtonsRoom();

    // What the window says of its controls (MainWindow_Speech.cpp).
    void connectPointing();
    void lookWhereAPersonPoints(const QObject* button, QEvent* event);
    void pointAtRequest(std::optional<RequestKind> button);
    void describeButtons();
    void connectEditMenu();
    void fitToContent();
    void keepEmptyStatesReadable();

    void perform(Action action);
    void findInLog(void (FindBar::*step)());
    void drawerDidChange(DrawerState state);

    std::unique_ptr<Ui::MainWindow> _ui;
    std::unique_ptr<Controls> _controls;
    KXConfigAppDelegate* _controller = nullptr;
    std::deque<Action> _actions; // the running action, and the ones asked for since
};

} // namespace kx
