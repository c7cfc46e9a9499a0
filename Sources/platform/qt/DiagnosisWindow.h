// The window with the checks of the diagnosis: what was looked at on the way to the units and back,
// what was seen, and what to do.
//
// It asks when it is opened and when its button is pressed. A state shows itself by a sign and a
// word. Keys: Escape closes; Ctrl+C copies everything.
//
// Main thread only. The diagnosis must outlive the window.

#pragma once

#include "KXDiagnosis.h"
#include "platform/qt/AnnouncedLabel.h"

#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QWidget>
#include <functional>

namespace kx {

class DiagnosisWindow final : public QWidget {
    Q_OBJECT

public:
    DiagnosisWindow(KXDiagnosis& diagnosis, std::function<void()> openHelp);
    ~DiagnosisWindow() override;

    // Brings the window to the front, and asks.
    void showAndAsk();

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    QPushButton* addButton(const char* objectName, const QString& text);
    void layOut();
    void ask();
    void showReport();
    void showChecks();
    void showCheck(int row, const KXDiagnosis::Row& check);
    void showHeading();
    void copy() const;

    KXDiagnosis& _diagnosis;
    std::function<void()> _openHelp;
    AnnouncedLabel* _heading; // the window owns these
    QTableWidget* _checks;
    QPushButton* _askButton;
    QPushButton* _copyButton;
    QPushButton* _helpButton;
    QPushButton* _closeButton;
    QWidget* _focusBefore = nullptr; // when it began to ask; null when nobody had the keyboard
    const QWidget* _focusMeanwhile = nullptr;
};

} // namespace kx
