// The window *All Units*: every unit that has answered since the start, in a table that is sorted,
// filtered, copied and exported.
//
// It follows the units while it is shown. Closing hides it, so filter, order, columns and place are
// those of before when it is shown again. Nothing of it is kept beyond the run, but the files that
// a person exports.
//
// Main thread only. The units must outlive it. No operation waits for a person: the dialog for a
// file is a window of its own.

#pragma once

#include "conversation/AllUnits.h"

#include <QWidget>
#include <functional>
#include <string_view>

class QLineEdit;
class QPushButton;

namespace kx {

class AllUnitsModel;
class AllUnitsView;
class AnnouncedLabel;

class AllUnitsWindow final : public QWidget {
    Q_OBJECT

public:
    struct Actions {
        std::function<void(std::string_view serial)> showUnit; // in the main window
        std::function<void(std::string_view page)> openHelp;
    };

    AllUnitsWindow(AllUnits& units, Actions actions, QWidget* parent = nullptr);

    // Shows the window in front of the others, with the keyboard in the filter.
    void present();

    enum class FileFormat { csv, json };

    // Writes the units that the table shows, in its order and with the columns of kxctl, to a file
    // as a whole, and says under its name whether that went well.
    void exportTo(const QString& path, FileFormat format);

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QWidget* makeFilterRow();
    QWidget* makeButtonRow();
    void keepPlaceholderReadable();
    void connectTable();
    void connectKeys();
    void addTableAction(const char* objectName, const QString& text, const QKeySequence& key,
                        void (AllUnitsWindow::*act)());

    void applyFilter();
    void tellCount();
    QString countText() const;
    void showUnit(std::uint32_t unit);
    void showCurrentUnit();
    void copyRows();
    void copyCell();
    void chooseFile();
    void leave();
    void tell(const QString& note);

    AllUnits& _units;
    Actions _actions;
    AllUnitsModel& _model;
    AllUnitsView& _table;
    QLineEdit& _filter;
    AnnouncedLabel& _count;
    AnnouncedLabel& _note; // the result of an export
    QPushButton* _exportButton = nullptr;
};

} // namespace kx
