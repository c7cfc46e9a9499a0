#include "platform/qt/EditCommands.h"

#include "platform/qt/LogTextView.h"

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>

namespace kx {

namespace {

// The row that is selected. In a table without selection it is the row that has the keyboard.
int rowToCopy(const QTableView& table) {
    if (table.selectionMode() == QAbstractItemView::NoSelection) {
        return table.currentIndex().row();
    }
    const QModelIndexList rows = table.selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

QString cellsOf(const QTableView& table, int row) {
    QStringList texts;
    for (int column = 0; row >= 0 && column < table.model()->columnCount(); ++column) {
        texts.append(table.model()->index(row, column).data().toString());
    }
    const bool isBlank = texts.join(QString()).isEmpty();
    return isBlank ? QString() : texts.join('\t');
}

void toClipboard(const QString& text) {
    if (!text.isEmpty()) {
        QGuiApplication::clipboard()->setText(text);
    }
}

QLineEdit* fieldToEdit(QWidget* control) {
    auto* const field = qobject_cast<QLineEdit*>(control);
    return field != nullptr && !field->isReadOnly() ? field : nullptr;
}

QString selectedText(QWidget* control) {
    if (const auto* field = qobject_cast<QLineEdit*>(control)) {
        return field->selectedText();
    }
    if (const auto* label = qobject_cast<QLabel*>(control)) {
        return label->selectedText();
    }
    if (const auto* table = qobject_cast<QTableView*>(control)) {
        return cellsOf(*table, rowToCopy(*table));
    }
    if (const auto* popUp = qobject_cast<QComboBox*>(control)) {
        return popUp->currentText();
    }
    return {};
}

} // namespace

void copySelection(QWidget* control) {
    if (const auto* log = qobject_cast<LogTextView*>(control)) {
        log->copy();
        return;
    }
    toClipboard(selectedText(control));
}

void undoEdit(QWidget* control) {
    if (auto* const field = fieldToEdit(control)) {
        field->undo();
    }
}

void cutSelection(QWidget* control) {
    if (auto* const field = fieldToEdit(control)) {
        field->cut();
    }
}

void pasteText(QWidget* control) {
    if (auto* const field = fieldToEdit(control)) {
        field->paste();
    }
}

EditCommandsNow editCommandsNow(const QWidget* control) {
    const auto* const field = qobject_cast<const QLineEdit*>(control);
    if (field == nullptr || field->isReadOnly()) {
        return {};
    }
    return {.canUndo = field->isUndoAvailable(),
            .canCut = field->hasSelectedText(),
            .canPaste = !QGuiApplication::clipboard()->text().isEmpty()};
}

void copyValue(const QTableView& table) {
    const int row = rowToCopy(table);
    if (row >= 0) {
        toClipboard(table.model()->index(row, table.model()->columnCount() - 1).data().toString());
    }
}

void copyRows(const QTableView& table) {
    QString rows;
    for (int row = 0; row < table.model()->rowCount(); ++row) {
        rows += cellsOf(table, row) + '\n';
    }
    toClipboard(rows);
}

void selectAll(QWidget* control) {
    if (auto* field = qobject_cast<QLineEdit*>(control)) {
        field->selectAll();
    } else if (auto* log = qobject_cast<LogTextView*>(control)) {
        log->selectAll();
    } else if (auto* label = qobject_cast<QLabel*>(control)) {
        label->setSelection(0, static_cast<int>(label->text().size()));
    }
}

} // namespace kx
