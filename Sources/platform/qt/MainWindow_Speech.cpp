// What the window says of its controls before a person uses them, and the commands of the edit
// menu.

#include "KXConfigAppDelegate.h"
#include "platform/qt/EditCommands.h"
#include "platform/qt/MainWindow.h"
#include "platform/qt/QtButton.h"
#include "platform/qt/QtText.h"
#include "ui_MainWindow.h"

#include <QFocusEvent>

namespace kx {

void MainWindow::connectPointing() {
    _ui->reloadButton->installEventFilter(this);
    _ui->restoreButton->installEventFilter(this);
    connect(_ui->unitMenu, &QMenu::hovered, this, [this](const QAction* action) {
        pointAtRequest(action == _ui->reloadAction    ? std::optional(RequestKind::reload)
                       : action == _ui->restoreAction ? std::optional(RequestKind::restore)
                                                      : std::nullopt);
    });
    connect(_ui->unitMenu, &QMenu::aboutToHide, this, [this] { pointAtRequest(std::nullopt); });
}

// A button that was pressed keeps the keyboard. It is not pointed at because of that, so that the
// outcome stays in sight.
void MainWindow::lookWhereAPersonPoints(const QObject* button, QEvent* event) {
    const auto kind = button == _ui->reloadButton ? RequestKind::reload : RequestKind::restore;
    switch (event->type()) {
    case QEvent::FocusIn: {
        const Qt::FocusReason reason = static_cast<const QFocusEvent*>(event)->reason();
        if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason) {
            pointAtRequest(kind);
        }
        break;
    }
    case QEvent::Enter:
        pointAtRequest(kind);
        break;
    case QEvent::FocusOut:
    case QEvent::Leave:
        pointAtRequest(std::nullopt);
        break;
    default:
        break;
    }
}

void MainWindow::pointAtRequest(std::optional<RequestKind> button) {
    if (_controller != nullptr) {
        _controller->pointAtRequest(button);
    }
}

void MainWindow::describeButtons() {
    const auto describe = [](QPushButton* button, const QString& sentence, const QAction* action) {
        describeButton(*button, sentence, action->shortcut());
    };
    describe(_ui->discoverButton, localizedQtText("Finds the units on the chosen interface."),
             _ui->discoverAction);
    describe(_ui->applyButton, localizedQtText("Sends the value in the edit row to the unit."),
             _ui->applyAction);
    describe(_ui->sendOptionButton, localizedQtText("Sends the command text to the unit."),
             _ui->sendOptionAction);
    describe(_ui->logDrawerButton, localizedQtText("Shows or hides the event log."),
             _ui->eventLogAction);
    describe(_ui->helpButton, localizedQtText("Opens the help."), _ui->helpAction);
    const QString apply = _ui->applyAction->shortcut().toString(QKeySequence::NativeText);
    _ui->editParameterTableView->setToolTip(
        qtText(localizedText("Return ends the typing. To apply it, press %@.", {utf8Text(apply)})));
}

void MainWindow::connectEditMenu() {
    const auto connectAction = [this](QAction* action, void (*command)(QWidget*)) {
        connect(action, &QAction::triggered, this, [this, command] { command(focusWidget()); });
    };
    connectAction(_ui->undoAction, &undoEdit);
    connectAction(_ui->cutAction, &cutSelection);
    connectAction(_ui->pasteAction, &pasteText);
    connect(_ui->copyValueAction, &QAction::triggered, this,
            [this] { copyValue(*_ui->unitParameterTableView); });
    connect(_ui->copyParametersAction, &QAction::triggered, this,
            [this] { copyRows(*_ui->unitParameterTableView); });
    connect(_ui->editMenu, &QMenu::aboutToShow, this, [this] {
        const EditCommandsNow now = editCommandsNow(focusWidget());
        _ui->undoAction->setEnabled(now.canUndo);
        _ui->cutAction->setEnabled(now.canCut);
        _ui->pasteAction->setEnabled(now.canPaste);
    });
    // A command that cannot be used now keeps its key for later.
    connect(_ui->editMenu, &QMenu::aboutToHide, this, [this] {
        for (QAction* action : {_ui->undoAction, _ui->cutAction, _ui->pasteAction}) {
            action->setEnabled(true);
        }
    });
    _ui->unitParameterTableView->addAction(_ui->copyValueAction);
    _ui->unitParameterTableView->addAction(_ui->copyParametersAction);
}

} // namespace kx
