#include "platform/qt/AllUnitsWindow.h"

#include "files/UnitCSV.h"
#include "files/UnitJSON.h"
#include "files/WholeFile.h"
#include "platform/qt/AllUnitsModel.h"
#include "platform/qt/AllUnitsView.h"
#include "platform/qt/AnnouncedLabel.h"
#include "platform/qt/PixelAlignedFrame.h"
#include "platform/qt/QtText.h"
#include "platform/qt/ScreenFit.h"
#include "words/QuotedText.h"

#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace kx {

namespace {

constexpr int preferredUnitRows = 20;

QPushButton* makeButton(const char* objectName, const QString& text, QWidget* parent) {
    auto* const button = new QPushButton(text, parent);
    button->setObjectName(objectName);
    button->setAutoDefault(false);
    return button;
}

// The units in the form that the writers of files take.
std::string textOfFile(const AllUnits& units, const std::vector<std::uint32_t>& rows,
                       AllUnitsWindow::FileFormat format) {
    std::vector<HostInterface> interfaces;
    for (const auto& [link, name] : units.links()) {
        interfaces.emplace_back();
        interfaces.back().name = name;
        interfaces.back().link = link;
    }
    std::vector<HeardUnit> written;
    written.reserve(rows.size());
    UnitList list;
    list.reserve(rows.size());
    for (const std::uint32_t unit : rows) {
        if (unit < units.size()) {
            written.push_back(units.row(unit).heardUnit());
            list.push_back(&written.back());
        }
    }
    return format == AllUnitsWindow::FileFormat::json ? documentOfUnits(list, interfaces)
                                                      : csvOfUnits(list, interfaces);
}

} // namespace

AllUnitsWindow::AllUnitsWindow(AllUnits& units, Actions actions, QWidget* parent)
    : QWidget(parent, Qt::Window)
    , _units(units)
    , _actions(std::move(actions))
    , _model(*new AllUnitsModel(units, this))
    , _table(*new AllUnitsView(_model, this))
    , _filter(*new QLineEdit(this))
    , _count(*new AnnouncedLabel(this))
    , _note(*new AnnouncedLabel(this)) {
    setObjectName("allUnitsWindow");
    setWindowTitle(localizedQtText("All Units"));
    _table.setObjectName("allUnitsTable");
    _table.setAccessibleName(localizedQtText("All Units"));
    _filter.setObjectName("allUnitsFilter");
    _count.setObjectName("allUnitsCount");
    _note.setObjectName("allUnitsNote");
    _note.setWordWrap(true);
    _note.hide();
    drawFrameOnPixels(_table);

    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(makeFilterRow());
    layout->addWidget(&_table, 1);
    layout->addWidget(&_note);
    layout->addWidget(makeButtonRow());
    keepPlaceholderReadable();
    connectTable();
    connectKeys();
    const QSize wanted(_table.wholeWidth() + layout->contentsMargins().left() +
                           layout->contentsMargins().right(),
                       preferredUnitRows * _table.verticalHeader()->defaultSectionSize() +
                           sizeHint().height() - _table.sizeHint().height());
    (new ScreenFit(*this))->resize(wanted);
    tellCount();
}

QWidget* AllUnitsWindow::makeFilterRow() {
    auto* const row = new QWidget(this);
    auto* const label = new QLabel(localizedQtText("&Filter:"), row);
    label->setBuddy(&_filter);
    _filter.setClearButtonEnabled(true);
    _filter.setPlaceholderText(localizedQtText("Any part of a shown value"));
    auto* const columns = makeButton("allUnitsColumnsButton", localizedQtText("&Columns"), row);
    columns->setMenu(&_table.columnMenu());
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(&_filter, 1);
    layout->addWidget(columns);
    setTabOrder(&_filter, columns);
    setTabOrder(columns, &_table);
    return row;
}

QWidget* AllUnitsWindow::makeButtonRow() {
    auto* const row = new QWidget(this);
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(&_count, 1);
    _exportButton = makeButton("allUnitsExportButton", localizedQtText("&Export…"), row);
    auto* const help = makeButton("allUnitsHelpButton", localizedQtText("&Help"), row);
    auto* const close = makeButton("allUnitsCloseButton", localizedQtText("Close"), row);
    QWidget* before = &_table;
    for (QPushButton* button : {_exportButton, help, close}) {
        layout->addWidget(button);
        setTabOrder(before, button);
        before = button;
    }
    connect(_exportButton, &QPushButton::clicked, this, &AllUnitsWindow::chooseFile);
    connect(help, &QPushButton::clicked, this, [this] { _actions.openHelp("all-units"); });
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    return row;
}

void AllUnitsWindow::connectTable() {
    connect(&_filter, &QLineEdit::textChanged, this, &AllUnitsWindow::applyFilter);
    connect(&_filter, &QLineEdit::returnPressed, &_table, &AllUnitsView::enterRows);
    connect(&_table, &AllUnitsView::shownColumnsDidChange, this, &AllUnitsWindow::applyFilter);
    connect(&_table, &AllUnitsView::unitChosen, this, &AllUnitsWindow::showUnit);
    connect(&_table, &AllUnitsView::textTyped, this, [this](const QString& text) {
        _filter.setFocus(Qt::OtherFocusReason);
        _filter.end(false);
        _filter.insert(text);
    });
    connect(&_model, &AllUnitsModel::unitsDidChange, this, &AllUnitsWindow::tellCount);

    addTableAction("showUnitAction", localizedQtText("&Show in Main Window"), {},
                   &AllUnitsWindow::showCurrentUnit);
    addTableAction("copyRowsAction", localizedQtText("&Copy"), QKeySequence::Copy,
                   &AllUnitsWindow::copyRows);
    addTableAction("copyCellAction", localizedQtText("Copy &Value"),
                   Qt::CTRL | Qt::SHIFT | Qt::Key_C, &AllUnitsWindow::copyCell);
}

void AllUnitsWindow::addTableAction(const char* objectName, const QString& text,
                                    const QKeySequence& key, void (AllUnitsWindow::*act)()) {
    auto* const action = new QAction(text, this);
    action->setObjectName(objectName);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, act);
    _table.addRowAction(*action);
}

void AllUnitsWindow::connectKeys() {
    const auto connectKey = [this](const QKeySequence& key, auto act) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, act);
    };
    connectKey(QKeySequence::Find, [this] {
        _filter.setFocus(Qt::ShortcutFocusReason);
        _filter.selectAll();
    });
    connectKey(Qt::Key_Escape, [this] { leave(); });
    connectKey(QKeySequence::Close, [this] { close(); });
    connectKey(Qt::Key_F1, [this] { _actions.openHelp("all-units"); });
    connectKey(Qt::CTRL | Qt::Key_E, [this] { chooseFile(); });
}

void AllUnitsWindow::present() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    _filter.setFocus(Qt::OtherFocusReason);
    _filter.selectAll();
}

// The placeholder says how to use the field, so it is a text to be read.
void AllUnitsWindow::keepPlaceholderReadable() {
    QColor dimmed = palette().color(QPalette::Active, QPalette::Text);
    dimmed.setAlphaF(0.65F);
    QPalette readable;
    readable.setColor(QPalette::PlaceholderText, dimmed);
    _filter.setPalette(readable);
}

void AllUnitsWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        keepPlaceholderReadable();
    }
}

void AllUnitsWindow::showEvent(QShowEvent* event) {
    _model.setActive(true);
    QWidget::showEvent(event);
}

void AllUnitsWindow::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    _model.setActive(false);
}

// Escape goes one step back: it takes the filter away, and closes the window without one.
void AllUnitsWindow::leave() {
    if (_filter.text().isEmpty()) {
        close();
    } else {
        _filter.clear();
    }
}

void AllUnitsWindow::applyFilter() {
    UnitColumns columns;
    for (const UnitColumn column : _table.shownColumns()) {
        columns.set(indexOf(column));
    }
    _model.setFilter(_filter.text(), columns);
}

// --- What the window says ---

void AllUnitsWindow::tellCount() {
    _count.say(countText());
    _exportButton->setEnabled(_model.rowCount() > 0);
    _table.setPlaceholderText(
        _units.size() == 0
            ? localizedQtText("No unit has answered yet. Press Discover in the main window.")
        : _model.isUpToDate() ? localizedQtText("No unit contains the text of the filter.")
                              : QString());
}

QString AllUnitsWindow::countText() const {
    const auto known = static_cast<long long>(_units.size());
    const auto shown = static_cast<long long>(_model.rowCount());
    if (known == 0) {
        return {};
    }
    std::string text;
    if (_model.hasFilter()) {
        text = known == 1 ? localizedText("1 unit, %d shown", {shown})
                          : localizedText("%d units, %d shown", {known, shown});
    } else {
        text = known == 1 ? localizedText("1 unit") : localizedText("%d units", {known});
    }
    if (_units.isIncomplete()) {
        text += ". " + localizedText("More have answered; those that were heard last are listed.");
    }
    return qtText(text);
}

void AllUnitsWindow::tell(const QString& note) {
    _note.setVisible(!note.isEmpty());
    _note.say(note);
}

// --- Units ---

void AllUnitsWindow::showUnit(std::uint32_t unit) {
    if (unit < _units.size()) {
        _actions.showUnit(_units.row(unit).text(UnitParameter::serialNumber).value_or(""));
    }
}

void AllUnitsWindow::showCurrentUnit() {
    const int row = _table.currentIndex().row();
    if (row >= 0) {
        showUnit(_model.rows()[static_cast<std::size_t>(row)]);
    }
}

void AllUnitsWindow::copyRows() {
    const QString text = _table.selectedRowsText();
    if (!text.isEmpty()) {
        QGuiApplication::clipboard()->setText(text);
    }
}

void AllUnitsWindow::copyCell() {
    const QString text = _table.currentText();
    if (!text.isEmpty()) {
        QGuiApplication::clipboard()->setText(text);
    }
}

void AllUnitsWindow::chooseFile() {
    if (_model.rowCount() == 0) {
        return;
    }
    tell({});
    const QString csv = localizedQtText("Comma-separated values (*.csv)");
    const QString json = localizedQtText("JSON (*.json)");
    auto* const dialog = new QFileDialog(this, localizedQtText("Export Units"));
    dialog->setObjectName("allUnitsFileDialog");
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilters({csv, json});
    dialog->setDefaultSuffix("csv");
    dialog->selectFile("units");
    connect(dialog, &QFileDialog::filterSelected, dialog, [dialog, json](const QString& chosen) {
        dialog->setDefaultSuffix(chosen == json ? "json" : "csv");
    });
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString& path) {
        const bool isJSON = path.endsWith(".json", Qt::CaseInsensitive);
        exportTo(path, isJSON ? FileFormat::json : FileFormat::csv);
    });
    dialog->open();
}

void AllUnitsWindow::exportTo(const QString& path, FileFormat format) {
    const std::string file = QFile::encodeName(path).toStdString();
    auto error = objectionToReplacing(file);
    if (!error.has_value()) {
        error = replaceFile(file, textOfFile(_units, _model.rows(), format));
    }
    const std::string name = safeForSentence(utf8Text(QFileInfo(path).fileName()));
    const auto count = static_cast<long long>(_model.rows().size());
    if (error.has_value()) {
        tell(qtText(
            localizedText("“%@” cannot be written: %@.", {name, error->localizedDescription()})));
    } else if (count == 1) {
        tell(qtText(localizedText("1 unit is written to “%@”.", {name})));
    } else {
        tell(qtText(localizedText("%d units are written to “%@”.", {count, name})));
    }
}

} // namespace kx
