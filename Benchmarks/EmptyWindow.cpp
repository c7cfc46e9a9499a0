// The reference for the start of the application: an empty window with the same kinds and numbers
// of controls, and no code behind them.

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QMainWindow window;
    auto* const content = new QWidget;
    auto* const column = new QVBoxLayout(content);
    for (int i = 0; i < 4; ++i) {
        column->addWidget(new QComboBox);
    }
    for (int i = 0; i < 2; ++i) {
        column->addWidget(new QLineEdit);
        column->addWidget(new QTableWidget(1, 2));
    }
    for (int i = 0; i < 6; ++i) {
        column->addWidget(new QLabel("Label:"));
    }
    for (int i = 0; i < 7; ++i) {
        column->addWidget(new QPushButton("Button"));
    }
    auto* const log = new QPlainTextEdit;
    log->hide();
    column->addWidget(log);
    for (int i = 0; i < 5; ++i) {
        window.menuBar()->addMenu("Menu")->addAction("Action");
    }
    window.setCentralWidget(content);
    window.show();
    return QApplication::exec();
}
