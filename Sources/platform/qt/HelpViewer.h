// The built-in viewer of the help: a window that shows the pages of one folder.
//
// It shows nothing else: a link that leads out of the folder does nothing, and nothing is fetched
// from a network. It remembers nothing: a viewer that is closed and opened again starts afresh.
// Keys: the window system's keys for back and forward, for finding a text and for finding it again,
// Alt+Home for the first page, Escape to close.
//
// Main thread only.

#pragma once

#include "platform/qt/AnnouncedLabel.h"

#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTextBrowser>
#include <QTextDocument>
#include <QUrl>
#include <QVariant>
#include <QWidget>

namespace kx {

// The text of a page, in the colours of the application's palette.
class HelpPageView final : public QTextBrowser {
    Q_OBJECT

public:
    explicit HelpPageView(const QString& folder, QWidget* parent = nullptr);

    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;
    void changeEvent(QEvent* event) override;

private:
    void colourLinks();
    bool isInFolder(const QUrl& name) const;

    QUrl _folder;
};

class HelpViewer final : public QWidget {
    Q_OBJECT

public:
    // `folder` holds the pages, in English and below it in other languages; see HelpLanguage.h. The
    // first page is "index.html". Pages are shown in `language`, a name such as "de".
    explicit HelpViewer(const QString& folder, const QString& language = "en",
                        QWidget* parent = nullptr);

    // Shows the page "`page`.html" and brings the window to the front. The window's title has the
    // title of the page and `book`.
    void showPage(const QString& page, const QString& book);

private:
    QPushButton* addButton(const char* objectName, const QString& text, const QKeySequence& key);
    QUrl urlOfPage(const QString& page) const;
    void showTitle();
    void addFind(QLayout& row);
    void find(QTextDocument::FindFlags direction);

    QString _folder;
    QString _language;
    QString _book;
    HelpPageView* _pages; // the window owns these, and the buttons
    QLineEdit* _findField;
    AnnouncedLabel* _findResult;
};

} // namespace kx
