// The units that the window *All Units* shows, as a model: a row for each, a column for each
// UnitColumn in their order.
//
// It follows the units while it is active. The rows are those of ShownUnits, so filtering and
// sorting go on in slices, between which the event loop takes a person's keys. Rows come and go at
// the end and are then moved to their places, so views keep the selection, the current row and
// their sections.
//
// Main thread only. The units must outlive the model, which is their only follower.

#pragma once

#include "conversation/AllUnits.h"
#include "words/ShownUnits.h"
#include "words/UnitColumns.h"

#include <QAbstractTableModel>
#include <QBasicTimer>
#include <chrono>
#include <cstdint>
#include <vector>

namespace kx {

class AllUnitsModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    // The role that says whether the unit of a row is silent.
    static constexpr int isSilentRole = Qt::UserRole;

    explicit AllUnitsModel(AllUnits& units, QObject* parent = nullptr);
    ~AllUnitsModel() override;

    // Whether it follows the units. When it begins to, it shows them at once as far as that takes
    // no time that a person notices.
    void setActive(bool isActive);

    // Shows only units that contain the text in one of these columns (ShownUnits::setFilter()).
    void setFilter(const QString& text, const UnitColumns& columns);
    bool hasFilter() const { return _shown.hasFilter(); }

    // Whether the rows are those of this moment.
    bool isUpToDate() const { return !_shown.hasWork(); }

    // The numbers of the units in the order of the rows.
    const std::vector<std::uint32_t>& rows() const { return _rows; }
    const AllUnits& units() const { return _units; }

    // The head of a column in one line, as menus and screen readers have it.
    static QString title(UnitColumn column);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

signals:
    // The rows are others or other units are known.
    void unitsDidChange();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void follow();
    void work(std::chrono::milliseconds longest);
    void show(const std::vector<std::uint32_t>& list);
    void insertAtEnd(const std::vector<std::uint32_t>& units);
    void putInOrder(std::vector<std::uint32_t> rows);
    void repaint();

    AllUnits& _units;
    UnitTexts _texts;
    ShownUnits _shown;
    std::vector<std::uint32_t> _rows;
    bool _isActive = false;
    QBasicTimer _pause; // runs until the work goes on
};

} // namespace kx
