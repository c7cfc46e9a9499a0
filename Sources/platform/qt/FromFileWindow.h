// The window *Configure from File…*: a table of units as a plan, Apply with its progress, and what
// became of each unit (KXTableRun.h).
//
// It follows the run, which it does not own. Closing it while units are configured asks whether to
// stop; afterwards it stays open and shows what became of them. At other times closing hides it,
// and what it shows is there again when it is opened.
//
// Main thread only. The run must outlive the window. No operation waits for a person: dialogs are
// windows of their own.

#pragma once

#include "KXTableRun.h"
#include "platform/qt/QtOpenPanel.h"
#include "platform/qt/QtSavePanel.h"

#include <QWidget>
#include <functional>

class QCheckBox;
class QLabel;
class QMessageBox;
class QProgressBar;
class QPushButton;

namespace kx {

class FromFileModel;
class FromFileTable;
class RefreshedComboBox;
class SentenceLabel;

class FromFileWindow final : public QWidget {
    Q_OBJECT

public:
    FromFileWindow(KXTableRun& run, std::function<void()> openHelp, QWidget* parent = nullptr);
    ~FromFileWindow() override;

    // Shows the window in front of the others. Without a file it asks for one.
    void present();

    // Asks whether to stop the run. When a person wants that, or has stopped it already, `stopped`
    // is called as soon as nothing is under way any more, unless a unit needs a look. It may be
    // empty. Of several calls, the last one that is not empty counts.
    void askToStop(std::function<void()> stopped);

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QPushButton* addButton(const char* objectName, const QString& text,
                           void (KXTableRun::*action)());
    QLayout* makeFileRow();
    QLayout* makeInterfaceRow();
    QLayout* makeButtonRow();
    void layOut();
    void connectKeys();
    void addKey(const QKeySequence& key, QPushButton* button, const QString& sentence);

    void follow();
    void enableControls();
    void showFileName();
    void showLineToLookAt();
    void listInterfaces();
    void showProgress();
    void showReason();
    QString placeholder() const;
    void copyRows();
    void stopThen(std::function<void()> stopped);

    KXTableRun& _run;
    std::function<void()> _openHelp;
    QtOpenPanel _openPanel{*this};
    QtSavePanel _savePanel{*this};
    FromFileModel* _model; // the window owns these
    FromFileTable* _table;
    QLabel* _file;
    RefreshedComboBox* _interfaces;
    SentenceLabel* _heading;
    SentenceLabel* _reason;
    QCheckBox* _keepsGoing;
    QProgressBar* _progress;
    SentenceLabel* _journal;
    QPushButton* _chooseButton = nullptr;
    QPushButton* _journalButton = nullptr;
    QPushButton* _askButton = nullptr;
    QPushButton* _applyButton = nullptr;
    QPushButton* _stopButton = nullptr;
    QPushButton* _revertButton = nullptr;
    QPushButton* _reportButton = nullptr;
    QPushButton* _helpButton = nullptr;
    QPushButton* _closeButton = nullptr;
    QMessageBox* _question = nullptr; // whether to stop; null while nobody is asked
    std::function<void()> _stopped;   // to be called when the run has stopped; may be empty
    KXTableRun::Stage _stage = KXTableRun::Stage::empty; // that is shown
    std::size_t _listNumber = 0;                         // of the lines that are shown
    QWidget* _focusBefore = nullptr;                     // lost the keyboard when it was disabled
};

} // namespace kx
