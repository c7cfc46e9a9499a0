// The main window: the controls of Resources/MainWindow.ui, wired to the controller.
//
// It owns every control, the adapters that the controller sees them through, and the table that
// feeds the parameter table. It decides nothing of the application; what it adds is the desktop's
// manners: keyboard, menus, empty states.
//
// Threading: main thread only. Ownership: the controller is not owned and must be taken away again
// with disconnectActions() before it is destroyed.

#pragma once

#include "Outlets.h"
#include "platform/qt/QtApplicationWindows.h"

#include <QMainWindow>
#include <deque>
#include <memory>

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

    // The controls as the controller knows them. They live as long as the window.
    MainWindowOutlets outlets();

    // From now on what the user does runs the controller's actions, closing the window included,
    // and the edit row shows the controller's values.
    void connectActions(KXConfigAppDelegate& controller);

    // From now on nothing reaches the controller any more.
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
    void fitToContent();
    void keepEmptyStatesReadable();

    void perform(Action action);
    void findInLog(void (FindBar::*step)());
    void drawerDidChange(DrawerState state);

    std::unique_ptr<Ui::MainWindow> _ui;
    std::unique_ptr<Controls> _controls;
    KXConfigAppDelegate* _controller = nullptr;
    std::deque<Action> _actions; // the one that runs, and what was asked for since
};

} // namespace kx
