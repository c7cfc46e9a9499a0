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
#include <functional>
#include <memory>
#include <optional>
#include <string_view>

namespace kx {

class AllUnitsWindow;
class FindBar;
class DiagnosisWindow;
class FromFileWindow;
class KXConfigAppDelegate;
class KXDiagnosis;
class KXTableRun;

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

    // The link Details… stands beside the line below Discover after this. It opens the window with
    // the checks, whose Help calls `openHelp`. The diagnosis must outlive this window, or be taken
    // away with null.
    void setDiagnosis(KXDiagnosis* diagnosis, std::function<void()> openHelp);

    // The menu has Configure from File… after this, whose window's Help calls `openHelp`. While the
    // run configures units, this window asks before it closes. The run must outlive this window, or
    // be taken away with null.
    void setTableRun(KXTableRun* run, std::function<void()> openHelp);

    // The controller, while it is connected.
    const WindowDelegate* windowDelegate() const override;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct Controls;
    using Action = std::function<void(KXConfigAppDelegate&)>;

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
    void showAllUnits();
    void showUnit(std::string_view serial);
    void showDetails();
    void showFromFile();
    bool mustWaitForRun();
    void findInLog(void (FindBar::*step)());
    void drawerDidChange(DrawerState state);

    std::unique_ptr<Ui::MainWindow> _ui;
    std::unique_ptr<Controls> _controls;
    KXDiagnosis* _diagnosis = nullptr;
    std::function<void()> _openHelpOfDetails;
    std::unique_ptr<DiagnosisWindow> _details; // null until it is first opened
    KXTableRun* _tableRun = nullptr;
    std::function<void()> _openHelpOfTables;
    std::unique_ptr<FromFileWindow> _fromFile; // null until it is first opened
    KXConfigAppDelegate* _controller = nullptr;
    std::deque<Action> _actions; // the running action, and the ones asked for since
    std::unique_ptr<AllUnitsWindow> _allUnitsWindow; // null until it is first opened
};

} // namespace kx
