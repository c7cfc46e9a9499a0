#include "platform/qt/QtTableView.h"

#include <QEvent>
#include <QItemSelectionModel>
#include <QMouseEvent>
#include <QObject>
#include <utility>

namespace kx {

namespace {

// Makes a click below the rows select no row. Newer versions of the toolkit keep the selection
// then.
class ClicksBelowRows final : public QObject {
public:
    explicit ClicksBelowRows(QTableView& view)
        : QObject(&view)
        , _view(view) {
        view.viewport()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonPress) {
            const auto* const press = static_cast<QMouseEvent*>(event);
            if (press->button() == Qt::LeftButton && !_view.indexAt(press->pos()).isValid()) {
                _view.clearSelection();
            }
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QTableView& _view;
};

} // namespace

QtTableView::QtTableView(QTableView& view, std::vector<QtTableColumn> columns)
    : _view(view)
    , _model(std::move(columns)) {
    // Connected before the view connects: when the current row goes, the view would select another
    // row in its place.
    QObject::connect(&_model, &QAbstractItemModel::rowsAboutToBeRemoved, &_model,
                     [this](const QModelIndex&, int first) {
                         if (_view.currentIndex().row() >= first || selectedRow() >= first) {
                             _view.selectionModel()->clear();
                         }
                     });
    view.setModel(&_model);
    view.setSelectionBehavior(QAbstractItemView::SelectRows);
    view.setSelectionMode(QAbstractItemView::SingleSelection);
    new ClicksBelowRows(view); // the view owns it
    QObject::connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, &_model,
                     [this] {
                         if (!_reloading && _selectionAction) {
                             _selectionAction();
                         }
                     });
}

void QtTableView::setDataSource(TableViewDataSource* dataSource) {
    const bool outer = std::exchange(_reloading, true);
    _model.setDataSource(dataSource);
    _reloading = outer;
}

void QtTableView::setSelectionAction(std::function<void()> action) {
    _selectionAction = std::move(action);
}

void QtTableView::reloadData() {
    const bool outer = std::exchange(_reloading, true);
    _model.reload();
    _reloading = outer;
}

int QtTableView::selectedRow() const {
    const QModelIndexList rows = _view.selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

} // namespace kx
