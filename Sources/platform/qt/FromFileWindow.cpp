#include "platform/qt/FromFileWindow.h"

#include "platform/qt/FromFileModel.h"
#include "platform/qt/FromFileTable.h"
#include "platform/qt/PixelAlignedFrame.h"
#include "platform/qt/QtButton.h"
#include "platform/qt/QtText.h"
#include "platform/qt/RefreshedComboBox.h"
#include "platform/qt/ScreenFit.h"
#include "platform/qt/SentenceLabel.h"
#include "words/QuotedText.h"

#include <QCheckBox>
#include <QClipboard>
#include <QCloseEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <utility>

namespace kx {

namespace {

constexpr int preferredPlanRows = 14;

SentenceLabel* makeSentence(const char* objectName, int lines, QWidget* parent) {
    auto* const label = new SentenceLabel(parent);
    label->setObjectName(objectName);
    label->setReservedLines(lines);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

FromFileWindow::FromFileWindow(KXTableRun& run, std::function<void()> openHelp, QWidget* parent)
    : QWidget(parent, Qt::Window)
    , _run(run)
    , _openHelp(std::move(openHelp))
    , _model(new FromFileModel(run, this))
    , _table(new FromFileTable(*_model, this))
    , _file(new QLabel(this))
    , _interfaces(new RefreshedComboBox(this))
    , _heading(makeSentence("fromFileHeading", 2, this))
    , _reason(makeSentence("fromFileReason", 2, this))
    , _keepsGoing(new QCheckBox(
          localizedQtText("&Keep going past lines that are refused or that fail"), this))
    , _progress(new QProgressBar(this))
    , _journal(makeSentence("fromFileJournal", 1, this)) {
    setObjectName("fromFileWindow");
    setWindowTitle(localizedQtText("Configure from File"));
    _table->setObjectName("fromFileTable");
    _table->setAccessibleName(localizedQtText("Plan"));
    _file->setObjectName("fromFileName");
    _file->setTextFormat(Qt::PlainText);
    _file->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    _interfaces->setObjectName("fromFileInterfacePopUp");
    _keepsGoing->setObjectName("fromFileKeepGoingBox");
    _progress->setObjectName("fromFileProgress");
    _progress->setAccessibleName(localizedQtText("Progress"));
    drawFrameOnPixels(*_table);
    layOut();
    connectKeys();
    connect(_table, &FromFileTable::currentRowDidChange, this, &FromFileWindow::showReason);
    connect(_keepsGoing, &QCheckBox::toggled, this,
            [this](bool isChecked) { _run.setKeepsGoing(isChecked); });
    connect(_interfaces, &RefreshedComboBox::aboutToOpen, this, [this] {
        _run.refreshInterfaces();
        listInterfaces();
    });
    connect(_interfaces, &QComboBox::activated, this, [this](int place) {
        _run.useInterface(_run.interfaces()[static_cast<std::size_t>(place)].name);
    });
    _run.setPanels({.open = &_openPanel, .save = &_savePanel});
    _run.setFollower([this] { follow(); });
    follow();
}

FromFileWindow::~FromFileWindow() {
    _run.setFollower({});
    _run.setPanels({});
}

QPushButton* FromFileWindow::addButton(const char* objectName, const QString& text,
                                       void (KXTableRun::*action)()) {
    auto* const button = new QPushButton(text, this);
    button->setObjectName(objectName);
    if (action != nullptr) {
        connect(button, &QPushButton::clicked, this, [this, action] { (_run.*action)(); });
    }
    return button;
}

QLayout* FromFileWindow::makeFileRow() {
    _chooseButton = addButton("fromFileChooseButton", localizedQtText("Choose &File…"),
                              &KXTableRun::chooseFile);
    _journalButton = addButton("fromFileJournalButton", localizedQtText("Choose &Journal…"),
                               &KXTableRun::chooseJournal);
    describeButton(*_journalButton,
                   localizedQtText("Makes the plan that takes the run of a journal back."), {});
    auto* const row = new QHBoxLayout;
    row->addWidget(_chooseButton);
    row->addWidget(_journalButton);
    row->addWidget(_file, 1);
    return row;
}

QLayout* FromFileWindow::makeInterfaceRow() {
    auto* const label = new QLabel(localizedQtText("Network &interface:"), this);
    label->setBuddy(_interfaces);
    _interfaces->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    _interfaces->setMinimumWidth(20 * fontMetrics().averageCharWidth()); // a title has any length
    _interfaces->setPlaceholderText(localizedQtText("None chosen"));
    _askButton = addButton("fromFileAskButton", localizedQtText("Ask Again"), &KXTableRun::ask);
    auto* const row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(_interfaces);
    row->addWidget(_askButton);
    row->addStretch(1);
    return row;
}

QLayout* FromFileWindow::makeButtonRow() {
    _applyButton = addButton("fromFileApplyButton", localizedQtText("&Apply"), &KXTableRun::apply);
    _stopButton = addButton("fromFileStopButton", localizedQtText("&Stop"), &KXTableRun::stop);
    _revertButton =
        addButton("fromFileRevertButton", localizedQtText("Re&vert"), &KXTableRun::revert);
    describeButton(
        *_revertButton,
        localizedQtText("Makes the plan that takes this run back. Apply then carries it out."), {});
    _reportButton = addButton("fromFileReportButton", localizedQtText("Save &Report…"),
                              &KXTableRun::saveReport);
    _helpButton = addButton("fromFileHelpButton", localizedQtText("&Help"), nullptr);
    _closeButton = addButton("fromFileCloseButton", localizedQtText("Close"), nullptr);
    connect(_helpButton, &QPushButton::clicked, this, [this] {
        if (_openHelp) {
            _openHelp();
        }
    });
    connect(_closeButton, &QPushButton::clicked, this, &QWidget::close);
    auto* const row = new QHBoxLayout;
    for (QPushButton* button : {_applyButton, _stopButton, _revertButton, _reportButton}) {
        row->addWidget(button);
    }
    row->addStretch(1);
    row->addWidget(_helpButton);
    row->addWidget(_closeButton);
    return row;
}

void FromFileWindow::layOut() {
    auto* const column = new QVBoxLayout(this);
    column->addLayout(makeFileRow());
    column->addLayout(makeInterfaceRow());
    column->addWidget(_heading);
    column->addWidget(_table, 1);
    column->addWidget(_reason);
    column->addWidget(_keepsGoing);
    column->addWidget(_progress);
    column->addWidget(_journal);
    column->addLayout(makeButtonRow());
    QSizePolicy policy = _progress->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // the controls keep their places
    _progress->setSizePolicy(policy);
    QWidget* before = _chooseButton;
    for (QWidget* next : std::initializer_list<QWidget*>{
             _journalButton, _interfaces, _askButton, _table, _keepsGoing, _applyButton,
             _stopButton, _revertButton, _reportButton, _helpButton, _closeButton}) {
        setTabOrder(before, next);
        before = next;
    }
    const QMargins margins = column->contentsMargins();
    const int rows = preferredPlanRows * _table->verticalHeader()->defaultSectionSize();
    (new ScreenFit(*this))
        ->resize({_table->usefulWidth() + margins.left() + margins.right(),
                  rows + sizeHint().height() - _table->sizeHint().height()});
}

void FromFileWindow::addKey(const QKeySequence& key, QPushButton* button, const QString& sentence) {
    connect(new QShortcut(key, this), &QShortcut::activated, button, [button] { button->click(); });
    describeButton(*button, sentence, key);
}

void FromFileWindow::connectKeys() {
    addKey(QKeySequence::Open, _chooseButton,
           localizedQtText("Reads a table of units or a kept plan, and asks the units."));
    addKey(Qt::Key_F5, _askButton,
           localizedQtText("Asks the units again, and makes the plan anew."));
    addKey(Qt::CTRL | Qt::Key_Return, _applyButton,
           localizedQtText("Makes the units show what the plan wants."));
    addKey(Qt::CTRL | Qt::Key_Period, _stopButton,
           localizedQtText("Finishes the units under way, and begins no other."));
    addKey(QKeySequence::Save, _reportButton,
           localizedQtText("Writes the table with what became of each line."));
    addKey(Qt::Key_F1, _helpButton, localizedQtText("Opens the help."));
    addKey(QKeySequence::Close, _closeButton, localizedQtText("Closes the window."));
    addKey(Qt::Key_Escape, _closeButton, localizedQtText("Closes the window."));
    auto* const copy = new QAction(localizedQtText("&Copy"), this);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, &FromFileWindow::copyRows);
    _table->addAction(copy);
    _table->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void FromFileWindow::present() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    if (_run.path().empty() && QGuiApplication::modalWindow() == nullptr) {
        _run.chooseFile();
    }
}

// --- What there is to see ---

void FromFileWindow::follow() {
    _model->follow();
    _table->setPlaceholderText(placeholder());
    showFileName();
    _heading->setMeansTrouble(_run.meansTrouble());
    _heading->say(qtText(_run.heading()));
    _journal->say(qtText(_run.journalLine()));
    enableControls();
    _keepsGoing->setChecked(_run.keepsGoing());
    listInterfaces();
    showProgress();
    showLineToLookAt();
    showReason();
    if (_question != nullptr && !_run.isApplying()) {
        _question->reject(); // there is nothing to stop any more
    }
}

// A control that is disabled gives the keyboard to the next one, where another press would do
// something else: Stop stands behind Apply. So the table gets it, and gives it back afterwards.
void FromFileWindow::enableControls() {
    QWidget* const before = focusWidget();
    _chooseButton->setEnabled(_run.canChoose());
    _journalButton->setEnabled(_run.canChoose());
    _interfaces->setEnabled(_run.canChoose());
    _keepsGoing->setEnabled(_run.canChoose());
    _askButton->setEnabled(_run.canAsk());
    _applyButton->setEnabled(_run.canApply());
    _stopButton->setEnabled(_run.canStop());
    _revertButton->setEnabled(_run.canRevert());
    _reportButton->setEnabled(_run.canSaveReport());
    if (before != nullptr && !before->isEnabled()) {
        _focusBefore = before;
        _table->setFocus();
    } else if (_run.canChoose()) {
        if (_focusBefore != nullptr && _focusBefore->isEnabled() && focusWidget() == _table) {
            _focusBefore->setFocus();
        }
        _focusBefore = nullptr;
    }
}

void FromFileWindow::listInterfaces() {
    QStringList titles;
    for (const HostInterface& interface : _run.interfaces()) {
        titles.append(qtText(safeForSentence(interface.title, mostCharactersOfSentence)));
    }
    QStringList shown;
    for (int place = 0; place < _interfaces->count(); ++place) {
        shown.append(_interfaces->itemText(place));
    }
    if (titles != shown) {
        _interfaces->clear();
        _interfaces->addItems(titles);
    }
    const auto chosen = _run.chosenInterface();
    _interfaces->setCurrentIndex(chosen.has_value() ? static_cast<int>(*chosen) : -1);
}

// While units are asked nothing can be counted, so the bar only shows that it goes on.
void FromFileWindow::showProgress() {
    const KXTableRun::Progress progress = _run.progress();
    _progress->setRange(0, static_cast<int>(progress.total));
    _progress->setValue(static_cast<int>(progress.ended));
    _progress->setFormat(qtText(progress.text));
    _progress->setTextVisible(!progress.text.empty());
    _progress->setVisible(!_run.canChoose());
}

// A path of any length must not make the window wider.
void FromFileWindow::showFileName() {
    const QString path = qtText(safeForSentence(_run.path(), mostCharactersOfSentence));
    _file->setText(_file->fontMetrics().elidedText(path, Qt::ElideMiddle, _file->width()));
    _file->setToolTip(path.toHtmlEscaped());
    _file->setAccessibleName(path);
}

// The reason of the line that matters most is there without a search for it.
void FromFileWindow::showLineToLookAt() {
    const bool isSameStage = std::exchange(_stage, _run.stage()) == _run.stage();
    const bool isSameList = std::exchange(_listNumber, _run.listNumber()) == _run.listNumber();
    if (isSameStage && isSameList) {
        return;
    }
    const auto line = _run.canChoose() ? _run.lineToLookAt() : std::nullopt;
    if (line.has_value()) {
        _table->setCurrentIndex(_model->index(static_cast<int>(*line), 0));
    }
}

void FromFileWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    layout()->activate(); // the label has its new width
    showFileName();
}

void FromFileWindow::showReason() {
    _reason->say(_model->reason(_table->currentIndex().row()));
}

QString FromFileWindow::placeholder() const {
    switch (_run.stage()) {
    case KXTableRun::Stage::empty:
        return localizedQtText("Choose a table of units: comma-separated values with a column "
                               "“serial” and one for each parameter that is to change.");
    case KXTableRun::Stage::unasked:
        return localizedQtText("The units of the file were not asked.");
    case KXTableRun::Stage::asking:
        return localizedQtText("Asking the units.");
    default:
        return localizedQtText("The file names no unit.");
    }
}

void FromFileWindow::copyRows() {
    const QString text = _table->selectedRowsText();
    if (!text.isEmpty()) {
        QGuiApplication::clipboard()->setText(text);
    }
}

// --- The end ---

void FromFileWindow::askToStop(std::function<void()> stopped) {
    if (_run.isStopping()) {
        stopThen(std::move(stopped));
        return;
    }
    if (_question != nullptr) {
        _question->raise();
        return;
    }
    auto* const question = new QMessageBox(this);
    _question = question;
    question->setObjectName("fromFileStopQuestion");
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setIcon(QMessageBox::Question);
    question->setWindowTitle(localizedQtText("Configure from File"));
    question->setText(localizedQtText("Units are being configured. Stop?"));
    question->setInformativeText(localizedQtText(
        "The units under way are finished and read back. The others stay as they are."));
    auto* const stop = question->addButton(localizedQtText("Stop"), QMessageBox::AcceptRole);
    auto* const goOn = question->addButton(localizedQtText("Go On"), QMessageBox::RejectRole);
    question->setDefaultButton(goOn);
    question->setEscapeButton(goOn);
    connect(stop, &QPushButton::clicked, this,
            [this, stopped = std::move(stopped)] { stopThen(stopped); });
    connect(question, &QDialog::finished, this, [this] { _question = nullptr; });
    question->open();
}

void FromFileWindow::stopThen(std::function<void()> stopped) {
    if (stopped) {
        _stopped = std::move(stopped);
    }
    _run.stopThen([this] {
        const auto ended = std::exchange(_stopped, nullptr);
        if (ended && !_run.needsALook()) {
            ended();
        }
    });
}

void FromFileWindow::closeEvent(QCloseEvent* event) {
    if (_run.isApplying()) {
        event->ignore();
        askToStop({});
        return;
    }
    _run.stop(); // nothing was sent but requests
    event->accept();
}

} // namespace kx
