// The window *Configure from File…*, which the main window opens.

#include "platform/qt/FromFileWindow.h"
#include "platform/qt/MainWindow.h"
#include "ui_MainWindow.h"

#include <utility>

namespace kx {

void MainWindow::setTableRun(KXTableRun* run, std::function<void()> openHelp) {
    _fromFile.reset();
    _tableRun = run;
    _openHelpOfTables = std::move(openHelp);
    _ui->fromFileAction->setVisible(_tableRun != nullptr);
}

void MainWindow::showFromFile() {
    if (_tableRun == nullptr) {
        return;
    }
    if (_fromFile == nullptr) {
        _fromFile = std::make_unique<FromFileWindow>(*_tableRun, _openHelpOfTables);
    }
    _fromFile->present();
}

bool MainWindow::mustWaitForRun() {
    if (_tableRun == nullptr || !_tableRun->isApplying()) {
        return false;
    }
    showFromFile();
    _fromFile->askToStop([this] { close(); });
    return true;
}

} // namespace kx
