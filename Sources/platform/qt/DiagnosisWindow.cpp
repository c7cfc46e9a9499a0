#include "platform/qt/DiagnosisWindow.h"

#include "platform/qt/PixelAlignedFrame.h"
#include "platform/qt/QtText.h"
#include "platform/qt/ScreenFit.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

namespace kx {

namespace {

enum Column { checkColumn, resultColumn, evidenceColumn, adviceColumn, columnCount };

// Beside the word, so that a state is seen without reading and without its colour.
QString signOf(CheckState state) {
    switch (state) {
    case CheckState::ok:
        return QStringLiteral("✓");
    case CheckState::warn:
        return QStringLiteral("!");
    case CheckState::fail:
        return QStringLiteral("✗");
    case CheckState::unknown:
        break;
    }
    return QStringLiteral("?");
}

} // namespace

DiagnosisWindow::DiagnosisWindow(KXDiagnosis& diagnosis, std::function<void()> openHelp)
    : QWidget(nullptr, Qt::Window)
    , _diagnosis(diagnosis)
    , _openHelp(std::move(openHelp))
    , _heading(new AnnouncedLabel(this))
    , _checks(new QTableWidget(0, columnCount, this))
    , _askButton(addButton("askAgainButton", localizedQtText("Ask Again")))
    , _copyButton(addButton("copyChecksButton", localizedQtText("Copy")))
    , _helpButton(addButton("detailsHelpButton", localizedQtText("Help")))
    , _closeButton(addButton("detailsCloseButton", localizedQtText("Close"))) {
    setObjectName("diagnosisWindow");
    setWindowTitle(localizedQtText("Why no unit answers"));
    layOut();
    connect(_askButton, &QPushButton::clicked, this, &DiagnosisWindow::ask);
    connect(_copyButton, &QPushButton::clicked, this, &DiagnosisWindow::copy);
    connect(_helpButton, &QPushButton::clicked, this, [this] {
        if (_openHelp) {
            _openHelp();
        }
    });
    connect(_closeButton, &QPushButton::clicked, this, &QWidget::close);
    for (const QKeySequence& key :
         {QKeySequence(Qt::Key_Escape), QKeySequence(QKeySequence::Close)}) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, &QWidget::close);
    }
    connect(new QShortcut(QKeySequence::Copy, this), &QShortcut::activated, this,
            &DiagnosisWindow::copy);
    connect(new QShortcut(QKeySequence(Qt::Key_F1), this), &QShortcut::activated, _helpButton,
            &QPushButton::click);
}

DiagnosisWindow::~DiagnosisWindow() {
    _diagnosis.stop();
}

QPushButton* DiagnosisWindow::addButton(const char* objectName, const QString& text) {
    auto* const button = new QPushButton(text, this);
    button->setObjectName(objectName);
    return button;
}

void DiagnosisWindow::layOut() {
    _heading->setObjectName("diagnosisHeading");
    _heading->setWordWrap(true);
    _heading->setTextInteractionFlags(Qt::TextSelectableByMouse);
    _checks->setObjectName("diagnosisChecks");
    _checks->setAccessibleName(localizedQtText("Checks"));
    _checks->setHorizontalHeaderLabels({localizedQtText("Check"), localizedQtText("State"),
                                        localizedQtText("What was seen"),
                                        localizedQtText("What to do")});
    _checks->setEditTriggers(QAbstractItemView::NoEditTriggers);
    _checks->setSelectionBehavior(QAbstractItemView::SelectRows);
    _checks->setTabKeyNavigation(false);
    _checks->setWordWrap(true);
    _checks->horizontalHeader()->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    _checks->verticalHeader()->hide();
    _checks->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    _checks->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    for (const int column : {evidenceColumn, adviceColumn}) {
        _checks->horizontalHeader()->setSectionResizeMode(column, QHeaderView::Stretch);
    }
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(_askButton);
    buttons->addWidget(_copyButton);
    buttons->addWidget(_helpButton);
    buttons->addStretch();
    buttons->addWidget(_closeButton);
    auto* const column = new QVBoxLayout(this);
    column->addWidget(_heading);
    column->addWidget(_checks);
    column->addLayout(buttons);
    drawFrameOnPixels(*_checks);
    (new ScreenFit(*this))->resize(QSize(820, 560));
}

void DiagnosisWindow::showAndAsk() {
    show();
    raise();
    activateWindow();
    ask();
}

// A button that is disabled gives the keyboard to the next one, where another press would do
// something else. So it gets the keyboard back, unless a person has taken it elsewhere.
void DiagnosisWindow::ask() {
    QWidget* const before = focusWidget();
    _focusBefore = nullptr;
    _diagnosis.ask([this] { showReport(); });
    if (_diagnosis.isAsking()) {
        _askButton->setEnabled(false);
        _copyButton->setEnabled(false);
        _focusBefore = before;
        _focusMeanwhile = focusWidget();
        _heading->say(localizedQtText("Asking. This takes a second, or three where nobody answers "
                                      "for an address."));
    }
}

void DiagnosisWindow::showReport() {
    showChecks();
    showHeading();
    _askButton->setEnabled(true);
    _copyButton->setEnabled(true);
    if (_focusBefore != nullptr && focusWidget() == _focusMeanwhile) {
        _focusBefore->setFocus();
    }
}

// Where there is nothing to do, what was seen has the room. Otherwise the keyboard begins where
// there is something to do, so that this is in sight in a low window, too.
void DiagnosisWindow::showChecks() {
    const auto& rows = _diagnosis.report().rows;
    _checks->setRowCount(static_cast<int>(rows.size()));
    int firstWithAdvice = -1;
    for (int row = 0; row < _checks->rowCount(); ++row) {
        const KXDiagnosis::Row& each = rows[static_cast<std::size_t>(row)];
        showCheck(row, each);
        if (firstWithAdvice < 0 && !each.advice.empty()) {
            firstWithAdvice = row;
        }
    }
    _checks->setColumnHidden(adviceColumn, firstWithAdvice < 0);
    const QModelIndex start = _checks->model()->index(std::max(firstWithAdvice, 0), checkColumn);
    _checks->selectionModel()->setCurrentIndex(start, QItemSelectionModel::NoUpdate);
    _checks->resizeRowsToContents();
    _checks->scrollTo(start);
}

void DiagnosisWindow::showCheck(int row, const KXDiagnosis::Row& check) {
    QFont font;
    font.setBold(check.state == CheckState::fail);
    const auto set = [&](Column column, const QString& text) {
        auto* const item = new QTableWidgetItem(text);
        if (column == checkColumn || column == resultColumn) {
            item->setFont(font);
        }
        _checks->setItem(row, column, item);
    };
    set(checkColumn, qtText(check.title));
    set(resultColumn, signOf(check.state) + ' ' + qtText(check.word));
    set(evidenceColumn, qtText(check.evidence));
    set(adviceColumn, qtText(check.advice));
}

void DiagnosisWindow::showHeading() {
    const auto& report = _diagnosis.report();
    QStringList causes;
    for (const std::string& cause : report.causes) {
        causes.append(qtText(cause));
    }
    if (causes.isEmpty()) {
        causes.append(report.isHealthy ? localizedQtText("Units answer, and no check fails.")
                                       : localizedQtText("No cause was found."));
    }
    _heading->say(causes.join('\n'));
}

void DiagnosisWindow::copy() const {
    if (_copyButton->isEnabled()) {
        QApplication::clipboard()->setText(qtText(_diagnosis.text()));
    }
}

// Wrapped rows need another height in another font.
void DiagnosisWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        _checks->resizeRowsToContents();
    }
}

// Nothing goes on being asked behind a closed window.
void DiagnosisWindow::closeEvent(QCloseEvent* event) {
    _diagnosis.stop();
    _askButton->setEnabled(true);
    event->accept();
}

} // namespace kx
