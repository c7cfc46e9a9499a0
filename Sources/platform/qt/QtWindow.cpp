#include "platform/qt/QtWindow.h"

#include <QAbstractItemDelegate>
#include <QAbstractItemView>

namespace kx {

bool QtWindow::makeFirstResponder() {
    endEditing();
    return true;
}

void QtWindow::endEditing() {
    // An open cell editor is a child of its view's viewport. Asking for it there finds it also when
    // the window is not the active one, in which no editor has the application's focus.
    for (QAbstractItemView* view : _window.findChildren<QAbstractItemView*>()) {
        const auto editors =
            view->viewport()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        for (QWidget* editor : editors) {
            if (editor->isHidden()) {
                continue; // closed, and deleted only by the next turn of the event loop
            }
            QAbstractItemDelegate* delegate = view->itemDelegate();
            emit delegate->commitData(editor);
            emit delegate->closeEditor(editor, QAbstractItemDelegate::NoHint);
        }
    }
}

} // namespace kx
