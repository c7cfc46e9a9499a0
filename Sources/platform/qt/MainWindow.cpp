#include "platform/qt/MainWindow.h"

#include "KXConfigAppDelegate.h"
#include "KXParameterEntry.h"
#include "platform/qt/AboutBox.h"
#include "platform/qt/AllUnitsWindow.h"
#include "platform/qt/DiagnosisWindow.h"
#include "platform/qt/EditCommands.h"
#include "platform/qt/FindBar.h"
#include "platform/qt/FromFileWindow.h"
#include "platform/qt/PixelAlignedFrame.h"
#include "platform/qt/QtAlert.h"
#include "platform/qt/QtButton.h"
#include "platform/qt/QtDrawer.h"
#include "platform/qt/QtPopUpButton.h"
#include "platform/qt/QtSavePanel.h"
#include "platform/qt/QtTableView.h"
#include "platform/qt/QtText.h"
#include "platform/qt/QtTextField.h"
#include "platform/qt/QtTextLabel.h"
#include "platform/qt/QtTextView.h"
#include "platform/qt/QtWindow.h"
#include "platform/qt/ScreenFit.h"
#include "tables/GXArrayTable.h"
#include "ui_MainWindow.h"
#include "units/UnitParameter.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <algorithm>

namespace kx {

namespace {

std::vector<QtTableColumn> parameterColumns(bool valueIsEditable) {
    return {
        {{std::string(KXParameterEntry::parameterNameKey)},
         localizedQtText("Parameter"),
         false,
         true},
        {{std::string(KXParameterEntry::parameterValueKey)},
         localizedQtText("Value"),
         valueIsEditable,
         false},
    };
}

} // namespace

struct MainWindow::Controls {
    Controls(MainWindow& mainWindow, Ui::MainWindow& ui)
        : window(mainWindow)
        , interfacePopUp(*ui.interfacePopUp)
        , udpPortPopUp(*ui.udpPortPopUp)
        , discoveryLine(*ui.discoveryLine)
        , unitSelectPopUp(*ui.unitSelectPopUp)
        , unitIDField(*ui.unitIDField)
        , reloadButton(*ui.reloadButton)
        , unitParameterTableView(*ui.unitParameterTableView, parameterColumns(false))
        , editParameterTableView(*ui.editParameterTableView, parameterColumns(true))
        , quietLine(*ui.quietLine)
        , optionCommandPopUp(*ui.optionCommandPopUp)
        , optionCommandField(*ui.optionCommandField)
        , restoreButton(*ui.restoreButton)
        , eventLogDrawer(*ui.splitter, *ui.content, *ui.eventLogDrawer, *ui.logScrollView)
        , logTextView(*ui.logTextView)
        , findBar(*ui.logTextView, ui.logScrollView)
        , alert(mainWindow)
        , savePanel(mainWindow) {
        ui.logLayout->addWidget(&findBar);
        unitParameterTableView.setDataSource(&unitParameterTable);
    }

    GXArrayTable unitParameterTable;
    QtWindow window;
    QtPopUpButton interfacePopUp;
    QtPopUpButton udpPortPopUp;
    QtTextLabel discoveryLine;
    QtPopUpButton unitSelectPopUp;
    QtTextField unitIDField;
    QtButton reloadButton;
    QtTableView unitParameterTableView;
    QtTableView editParameterTableView;
    QtTextLabel quietLine;
    QtPopUpButton optionCommandPopUp;
    QtTextField optionCommandField;
    QtButton restoreButton;
    QtDrawer eventLogDrawer;
    QtTextView logTextView;
    FindBar findBar;
    QtAlert alert;
    QtSavePanel savePanel;
};

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , _ui(std::make_unique<Ui::MainWindow>()) {
    _ui->setupUi(this);
    _controls = std::make_unique<Controls>(*this, *_ui);
    connectButtons();
    connectPopUps();
    connectMenus();
    connectTables();
    _controls->reloadButton.setKey(_ui->reloadAction->shortcut());
    _controls->restoreButton.setKey(_ui->restoreAction->shortcut());
    connectPointing();
    connectEditMenu();
    describeButtons();
    _controls->eventLogDrawer.setStateAction([this](DrawerState state) { drawerDidChange(state); });
    for (QFrame* frame : std::initializer_list<QFrame*>{
             _ui->unitParameterTableView, _ui->editParameterTableView, _ui->logTextView}) {
        drawFrameOnPixels(*frame);
    }
    keepEmptyStatesReadable();
    giveTextsOfButtonsRoom();
    fitToContent();
}

MainWindow::~MainWindow() = default;

MainWindowOutlets MainWindow::outlets() {
    MainWindowOutlets outlets;
    outlets.window = &_controls->window;
    outlets.interfacePopUp = &_controls->interfacePopUp;
    outlets.udpPortPopUp = &_controls->udpPortPopUp;
    outlets.discoveryLine = &_controls->discoveryLine;
    outlets.unitSelectPopUp = &_controls->unitSelectPopUp;
    outlets.unitIDField = &_controls->unitIDField;
    outlets.reloadButton = &_controls->reloadButton;
    outlets.unitParameterTableView = &_controls->unitParameterTableView;
    outlets.unitParameterTable = &_controls->unitParameterTable;
    outlets.editParameterTableView = &_controls->editParameterTableView;
    outlets.quietLine = &_controls->quietLine;
    outlets.optionCommandPopUp = &_controls->optionCommandPopUp;
    outlets.optionCommandField = &_controls->optionCommandField;
    outlets.restoreButton = &_controls->restoreButton;
    outlets.eventLogDrawer = &_controls->eventLogDrawer;
    outlets.logTextView = &_controls->logTextView;
    outlets.alert = &_controls->alert;
    outlets.savePanel = &_controls->savePanel;
    return outlets;
}

void MainWindow::connectActions(KXConfigAppDelegate& controller) {
    _controller = &controller;
    _controls->editParameterTableView.setDataSource(&controller);
    _controls->unitSelectPopUp.setDetails(
        [&controller](std::string_view title) { return controller.detailsOfUnit(title); });
}

void MainWindow::disconnectActions() {
    _controller = nullptr;
    _allUnitsWindow.reset(); // it reads the controller's units
    _controls->editParameterTableView.setDataSource(nullptr);
    _controls->unitSelectPopUp.setDetails({});
}

void MainWindow::setDiagnosis(KXDiagnosis* diagnosis, std::function<void()> openHelp) {
    _details.reset();
    _diagnosis = diagnosis;
    _openHelpOfDetails = std::move(openHelp);
    _ui->detailsButton->setVisible(_diagnosis != nullptr);
}

void MainWindow::showDetails() {
    if (_diagnosis == nullptr) {
        return;
    }
    if (_details == nullptr) {
        _details = std::make_unique<DiagnosisWindow>(*_diagnosis, _openHelpOfDetails);
    }
    _details->showAndAsk();
}

const WindowDelegate* MainWindow::windowDelegate() const {
    return _controller;
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    // A wheel that scrolls the content must not choose another unit or port on the way.
    const auto* popUp = qobject_cast<QComboBox*>(watched);
    if (popUp != nullptr && event->type() == QEvent::Wheel && !popUp->hasFocus()) {
        event->ignore();
        return true;
    }
    if (watched == _ui->reloadButton || watched == _ui->restoreButton) {
        lookWhereAPersonPoints(watched, event);
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        keepEmptyStatesReadable();
    }
    // The person may have configured an interface before coming back to the window.
    if (event->type() == QEvent::ActivationChange && isActiveWindow() &&
        !_ui->interfacePopUp->isEnabled()) {
        perform(&KXConfigAppDelegate::interfacePopUpWillOpen);
    }
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (mustWaitForRun()) {
        event->ignore();
        return;
    }
    event->accept();
    perform(&KXConfigAppDelegate::windowWillClose);
}

// Return presses the button that has the keyboard, or sends the command being typed. In all other
// cases it presses the default button. Qt does so by itself in dialogues only.
void MainWindow::keyPressEvent(QKeyEvent* event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (!isReturn || !isPlain) {
        QMainWindow::keyPressEvent(event);
        return;
    }
    QAbstractButton* button = qobject_cast<QAbstractButton*>(focusWidget());
    if (focusWidget() == _ui->optionCommandField) {
        button = _ui->sendOptionButton;
    }
    (button != nullptr ? button : _ui->discoverButton)->click();
}

void MainWindow::connectButtons() {
    const auto connectButton = [this](QPushButton* button, const Action& action) {
        connect(button, &QPushButton::clicked, this, [this, action] { perform(action); });
    };
    connectButton(_ui->discoverButton, &KXConfigAppDelegate::discoverButton);
    connectButton(_ui->reloadButton, &KXConfigAppDelegate::reloadUnitParameterButton);
    connectButton(_ui->applyButton, &KXConfigAppDelegate::applyEditParameterButton);
    connectButton(_ui->sendOptionButton, &KXConfigAppDelegate::sendOptionButton);
    connectButton(_ui->restoreButton, &KXConfigAppDelegate::restoreDefaultSettings);
    connectButton(_ui->logDrawerButton, &KXConfigAppDelegate::logDrawerButton);
    connectButton(_ui->helpButton, &KXConfigAppDelegate::myHelp);
    connect(_ui->detailsButton, &QPushButton::clicked, this, &MainWindow::showDetails);
}

void MainWindow::connectPopUps() {
    // The user's choice emits activated(); a selection made by code does not.
    const auto connectPopUp = [this](QComboBox* popUp, const Action& action) {
        connect(popUp, &QComboBox::activated, this, [this, action] { perform(action); });
        popUp->setFocusPolicy(Qt::StrongFocus);
        popUp->installEventFilter(this);
    };
    connectPopUp(_ui->interfacePopUp, &KXConfigAppDelegate::interfaceSelect);
    connect(_ui->interfacePopUp, &RefreshedComboBox::aboutToOpen, this,
            [this] { perform(&KXConfigAppDelegate::interfacePopUpWillOpen); });
    connectPopUp(_ui->udpPortPopUp, &KXConfigAppDelegate::udpPortSelect);
    connectPopUp(_ui->unitSelectPopUp, &KXConfigAppDelegate::unitSelectPopUp);
    connectPopUp(_ui->optionCommandPopUp, &KXConfigAppDelegate::optionCommandPopUp);
}

void MainWindow::connectMenus() {
    const auto connectToButton = [](QAction* action, QPushButton* button) {
        connect(action, &QAction::triggered, button, &QPushButton::click);
    };
    connectToButton(_ui->discoverAction, _ui->discoverButton);
    connectToButton(_ui->reloadAction, _ui->reloadButton);
    connectToButton(_ui->applyAction, _ui->applyButton);
    connectToButton(_ui->sendOptionAction, _ui->sendOptionButton);
    connectToButton(_ui->restoreAction, _ui->restoreButton);
    connectToButton(_ui->helpAction, _ui->helpButton);
    // With Alt, these open the viewer. Many desktops keep Alt+F1 and a click with Alt for
    // themselves.
    _ui->helpAction->setShortcuts(
        {Qt::Key_F1, Qt::ALT | Qt::Key_F1, Qt::ALT | Qt::SHIFT | Qt::Key_F1});
    connect(_ui->eventLogAction, &QAction::triggered, this, [this] {
        perform(&KXConfigAppDelegate::logDrawerButton);
        drawerDidChange(_controls->eventLogDrawer.state()); // the click has moved the check mark
    });
    connect(_ui->allUnitsAction, &QAction::triggered, this, &MainWindow::showAllUnits);
    connect(_ui->fromFileAction, &QAction::triggered, this, &MainWindow::showFromFile);
    connect(_ui->saveEventLogAction, &QAction::triggered, this,
            [this] { perform(&KXConfigAppDelegate::saveEventLog); });
    connect(_ui->saveSessionAction, &QAction::triggered, this,
            [this] { perform(&KXConfigAppDelegate::saveSession); });
    connect(_ui->aboutAction, &QAction::triggered, this, [this] { showAboutBox(*this); });
    connect(_ui->quitAction, &QAction::triggered, this, &QWidget::close);
    connect(_ui->copyAction, &QAction::triggered, this, [this] { copySelection(focusWidget()); });
    connect(_ui->selectAllAction, &QAction::triggered, this, [this] { selectAll(focusWidget()); });
    connect(_ui->findAction, &QAction::triggered, this, [this] { findInLog(&FindBar::open); });
    connect(_ui->findNextAction, &QAction::triggered, this,
            [this] { findInLog(&FindBar::findNext); });
    connect(_ui->findPreviousAction, &QAction::triggered, this,
            [this] { findInLog(&FindBar::findPrevious); });
    _ui->logTextView->addAction(_ui->findAction);
    for (QWidget* table : std::initializer_list<QWidget*>{_ui->unitParameterTableView,
                                                          _ui->editParameterTableView}) {
        table->setContextMenuPolicy(Qt::ActionsContextMenu);
        table->addAction(_ui->copyAction);
    }
}

void MainWindow::connectTables() {
    ParameterTableView* parameters = _ui->unitParameterTableView;
    ParameterTableView* editRow = _ui->editParameterTableView;
    editRow->setSelectionMode(QAbstractItemView::NoSelection);
    _controls->unitParameterTableView.setSelectionAction(
        [this] { perform(&KXConfigAppDelegate::tableViewSelectionDidChange); });
    connect(parameters, &ParameterTableView::rowChosen, editRow, &ParameterTableView::beginTyping);
    connect(editRow, &ParameterTableView::rowChosen, editRow, &ParameterTableView::beginTyping);
    connect(editRow, &ParameterTableView::textEdited, this, [this](const QString& text) {
        if (_controller != nullptr) {
            _controller->editTextDidChange(utf8Text(text));
        }
    });
    connect(editRow, &ParameterTableView::textKept, this,
            [this] { perform(&KXConfigAppDelegate::editTextWasKept); });

    // The two tables look like one, so their columns stay in line.
    connect(parameters->horizontalHeader(), &QHeaderView::sectionResized, editRow,
            [editRow](int section, int, int width) {
                if (section == 0) {
                    editRow->setColumnWidth(0, width);
                }
            });
    int widest = 0;
    for (const UnitParameter parameter : allUnitParameters) {
        const QString name = qtText(localizedText(nameOfUnitParameter(parameter)));
        widest = std::max(widest, fontMetrics().horizontalAdvance(name));
    }
    const int padding = 3 * fontMetrics().averageCharWidth();
    parameters->setColumnWidth(0, widest + padding);
}

// Some styles leave hardly a pixel beside a long text.
void MainWindow::giveTextsOfButtonsRoom() {
    const int room = 4 * fontMetrics().averageCharWidth();
    for (QPushButton* button : _ui->content->findChildren<QPushButton*>()) {
        const QSize text = fontMetrics().size(Qt::TextShowMnemonic, button->text());
        button->setMinimumWidth(std::max(text.width() + room, button->sizeHint().width()));
    }
}

// Without this, the scroll area around the content would ask for only a small part of its size. On
// a small screen the content scrolls.
void MainWindow::fitToContent() {
    auto* const screenFit = new ScreenFit(*this);
    _ui->content->layout()->activate(); // inner rows would otherwise answer for the old texts
    const int least = _ui->content->minimumSizeHint().width();
    _ui->contentArea->setMinimumWidth(std::min(least, screenFit->room().width()));
    screenFit->resize(_ui->content->sizeHint() + QSize(0, menuBar()->sizeHint().height()));
}

// The text of an empty or disabled pop-up is a message, not a faded choice.
void MainWindow::keepEmptyStatesReadable() {
    QColor dimmed = palette().color(QPalette::Active, QPalette::ButtonText);
    dimmed.setAlphaF(0.65F);
    for (QComboBox* popUp :
         std::initializer_list<QComboBox*>{_ui->interfacePopUp, _ui->unitSelectPopUp}) {
        QPalette readable;
        readable.setColor(QPalette::Disabled, QPalette::ButtonText, dimmed);
        readable.setColor(QPalette::Disabled, QPalette::Text, dimmed);
        readable.setColor(QPalette::PlaceholderText, dimmed);
        popUp->setPalette(readable);
    }
    // A field that cannot be edited has the colour of the window and not that of a field.
    QPalette readOnly;
    readOnly.setColor(QPalette::Base, palette().color(QPalette::Window));
    _ui->unitIDField->setPalette(readOnly);
}

// An action that is requested while another one runs, for example under its alert, runs after it.
void MainWindow::perform(Action action) {
    _actions.push_back(std::move(action));
    if (_actions.size() > 1) {
        return;
    }
    while (!_actions.empty()) {
        if (_controller != nullptr) {
            _actions.front()(*_controller);
        }
        _actions.pop_front();
    }
}

void MainWindow::findInLog(void (FindBar::*step)()) {
    if (_controls->eventLogDrawer.state() == DrawerState::closed) {
        perform(&KXConfigAppDelegate::logDrawerButton);
    }
    (_controls->findBar.*step)();
}

void MainWindow::drawerDidChange(DrawerState state) {
    const bool isOut = state == DrawerState::opening || state == DrawerState::open;
    _ui->eventLogAction->setChecked(isOut);
    if (!isOut && _ui->eventLogDrawer->isAncestorOf(focusWidget())) {
        _ui->logDrawerButton->setFocus();
    }
}

} // namespace kx
