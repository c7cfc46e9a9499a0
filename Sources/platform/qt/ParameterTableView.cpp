#include "platform/qt/ParameterTableView.h"

#include "platform/qt/Placeholder.h"

#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyledItemDelegate>

namespace kx {

namespace {

// Wide enough for the longest name beside a text of four address widths.
constexpr int preferredCharacters = 72;

} // namespace

// Tells the view which cell is edited, and every text that is typed. Tells a screen reader which
// value is edited.
class ParameterTableView::TypingDelegate final : public QStyledItemDelegate {
public:
    explicit TypingDelegate(ParameterTableView& view)
        : QStyledItemDelegate(&view)
        , _view(view) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override {
        _view._editedCell = index;
        QWidget* const editor = QStyledItemDelegate::createEditor(parent, option, index);
        if (auto* const lineEdit = qobject_cast<QLineEdit*>(editor)) {
            lineEdit->setAccessibleName(index.siblingAtColumn(0).data().toString());
            connect(lineEdit, &QLineEdit::textEdited, &_view, &ParameterTableView::textEdited);
        }
        return editor;
    }

private:
    ParameterTableView& _view;
};

ParameterTableView::ParameterTableView(QWidget* parent)
    : QTableView(parent) {
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalHeader()->hide();
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    fitRowsToFont();
    setItemDelegate(new TypingDelegate(*this));
    connect(this, &QAbstractItemView::doubleClicked, this, &ParameterTableView::rowChosen);
}

void ParameterTableView::setPreferredRows(int rows) {
    _preferredRows = rows;
    updateGeometry();
}

void ParameterTableView::setMinimumRows(int rows) {
    _minimumRows = rows;
    updateGeometry();
}

void ParameterTableView::setPlaceholderText(const QString& text) {
    _placeholderText = text;
    viewport()->update();
    describe();
}

void ParameterTableView::setModel(QAbstractItemModel* model) {
    QTableView::setModel(model);
    updateGeometry(); // the header's height depends on the model's titles
    connect(model, &QAbstractItemModel::dataChanged, this, &ParameterTableView::describe);
    connect(model, &QAbstractItemModel::rowsInserted, this, &ParameterTableView::describe);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &ParameterTableView::describe);
    describe();
}

void ParameterTableView::beginTyping() {
    const QModelIndex cell = firstEditableCell();
    if (cell.isValid()) {
        setFocus();
        setCurrentIndex(cell);
        edit(cell);
    }
}

bool ParameterTableView::showsPlaceholder() const {
    if (model() == nullptr || state() == EditingState) {
        return false;
    }
    for (int row = 0; row < model()->rowCount(); ++row) {
        for (int column = 0; column < model()->columnCount(); ++column) {
            if (!model()->index(row, column).data().toString().isEmpty()) {
                return false;
            }
        }
    }
    return true;
}

QSize ParameterTableView::sizeHint() const {
    return {preferredCharacters * fontMetrics().averageCharWidth(), heightForRows(_preferredRows)};
}

QSize ParameterTableView::minimumSizeHint() const {
    return {QTableView::minimumSizeHint().width(), heightForRows(_minimumRows)};
}

void ParameterTableView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    QTableView::closeEditor(editor, QAbstractItemDelegate::NoHint);
    // This is not the current cell: an editor also closes because another cell became current.
    emit textEdited(_editedCell.data(Qt::EditRole).toString());
    if (hint == QAbstractItemDelegate::EditNextItem) {
        focusNextChild();
    } else if (hint == QAbstractItemDelegate::EditPreviousItem) {
        focusPreviousChild();
    }
}

void ParameterTableView::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        fitRowsToFont();
        updateGeometry();
    }
}

void ParameterTableView::focusInEvent(QFocusEvent* event) {
    // A person who comes by keyboard wants the cell that takes their typing, not the one beside it.
    const QModelIndex cell = firstEditableCell();
    if (cell.isValid()) {
        setCurrentIndex(cell);
    }
    QTableView::focusInEvent(event);
}

void ParameterTableView::keyPressEvent(QKeyEvent* event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && event->modifiers().testFlag(Qt::ControlModifier)) {
        event->ignore();
    } else if (isReturn && state() == EditingState) {
        event->accept(); // it comes from the editor, which it closes
        emit textKept();
    } else if (isReturn && currentIndex().isValid()) {
        emit rowChosen();
    } else {
        QTableView::keyPressEvent(event);
    }
}

void ParameterTableView::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (showsPlaceholder()) {
        paintPlaceholder(*viewport(), _placeholderText);
    }
}

void ParameterTableView::describe() {
    setAccessibleDescription(showsPlaceholder() ? _placeholderText : QString());
}

QModelIndex ParameterTableView::firstEditableCell() const {
    if (model() != nullptr && model()->rowCount() > 0) {
        for (int column = 0; column < model()->columnCount(); ++column) {
            const QModelIndex cell = model()->index(0, column);
            if (cell.flags().testFlag(Qt::ItemIsEditable)) {
                return cell;
            }
        }
    }
    return {};
}

int ParameterTableView::heightForRows(int rows) const {
    const int header = horizontalHeader()->isHidden() ? 0 : horizontalHeader()->sizeHint().height();
    return header + rows * verticalHeader()->defaultSectionSize() + 2 * frameWidth();
}

void ParameterTableView::fitRowsToFont() {
    const int padding = fontMetrics().height() / 2;
    verticalHeader()->setMinimumSectionSize(fontMetrics().height());
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + padding);
}

} // namespace kx
