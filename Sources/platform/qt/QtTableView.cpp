#include "platform/qt/QtTableView.h"

#include <QItemSelectionModel>
#include <utility>

namespace kx {

QtTableView::QtTableView(QTableView& view, std::vector<QtTableColumn> columns)
    : _view(view)
    , _model(std::move(columns)) {
    // Connected before the view hears of it: when the current row goes, the view would select
    // another one in its place.
    QObject::connect(&_model, &QAbstractItemModel::rowsAboutToBeRemoved, &_model,
                     [this](const QModelIndex&, int first) {
                         if (_view.currentIndex().row() >= first || selectedRow() >= first) {
                             _view.selectionModel()->clear();
                         }
                     });
    view.setModel(&_model);
    view.setSelectionBehavior(QAbstractItemView::SelectRows);
    view.setSelectionMode(QAbstractItemView::SingleSelection);
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
