#include "platform/qt/EditCommands.h"

#include "platform/qt/LogTextView.h"

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>

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

QString cellsToCopy(const QTableView& table) {
    const int row = rowToCopy(table);
    QStringList texts;
    for (int column = 0; row >= 0 && column < table.model()->columnCount(); ++column) {
        texts.append(table.model()->index(row, column).data().toString());
    }
    const bool isBlank = texts.join(QString()).isEmpty();
    return isBlank ? QString() : texts.join('\t');
}

QString selectedText(QWidget* control) {
    if (const auto* field = qobject_cast<QLineEdit*>(control)) {
        return field->selectedText();
    }
    if (const auto* label = qobject_cast<QLabel*>(control)) {
        return label->selectedText();
    }
    if (const auto* table = qobject_cast<QTableView*>(control)) {
        return cellsToCopy(*table);
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
    const QString selected = selectedText(control);
    if (!selected.isEmpty()) {
        QGuiApplication::clipboard()->setText(selected);
    }
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
