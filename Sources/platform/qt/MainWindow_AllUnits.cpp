// The window of all units, which the main window opens.

#include "KXConfigAppDelegate.h"
#include "platform/qt/AllUnitsWindow.h"
#include "platform/qt/MainWindow.h"
#include "ui_MainWindow.h"

namespace kx {

void MainWindow::showAllUnits() {
    if (_controller == nullptr) {
        return;
    }
    if (_allUnitsWindow == nullptr) {
        _allUnitsWindow = std::make_unique<AllUnitsWindow>(
            _controller->allUnits(),
            AllUnitsWindow::Actions{
                .showUnit = [this](std::string_view serial) { showUnit(serial); },
                .openHelp =
                    [this](std::string_view page) {
                        perform([page = std::string(page)](KXConfigAppDelegate& controller) {
                            controller.openHelp(page);
                        });
                    }});
    }
    _allUnitsWindow->present();
}

void MainWindow::showUnit(std::string_view serial) {
    perform([serial = std::string(serial)](KXConfigAppDelegate& controller) {
        controller.pickUnit(serial);
    });
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
    _ui->unitParameterTableView->setFocus(Qt::OtherFocusReason);
}

} // namespace kx
