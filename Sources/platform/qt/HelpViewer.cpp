#include "platform/qt/HelpViewer.h"

#include "platform/qt/Contrast.h"
#include "platform/qt/HelpLanguage.h"
#include "platform/qt/PixelAlignedFrame.h"
#include "platform/qt/QtText.h"
#include "platform/qt/ScreenFit.h"

#include <QDir>
#include <QEvent>
#include <QHBoxLayout>
#include <QShortcut>
#include <QVBoxLayout>

namespace kx {

HelpPageView::HelpPageView(const QString& folder, QWidget* parent)
    : QTextBrowser(parent)
    , _folder(QUrl::fromLocalFile(QDir(folder).absolutePath() + '/')) {
    setObjectName("helpPages");
    setAccessibleName(localizedQtText("Help text"));
    colourLinks();
}

bool HelpPageView::isInFolder(const QUrl& name) const {
    const QUrl url = source().resolved(name).adjusted(QUrl::NormalizePathSegments);
    return _folder.isParentOf(url);
}

QVariant HelpPageView::loadResource(int type, const QUrl& name) {
    return isInFolder(name) ? QTextBrowser::loadResource(type, name) : QVariant();
}

void HelpPageView::doSetSource(const QUrl& name, QTextDocument::ResourceType type) {
    if (isInFolder(name)) {
        QTextBrowser::doSetSource(name, type);
    }
}

// A palette for a dark screen may have no colour for links; the toolkit's own is a dark blue.
void HelpPageView::colourLinks() {
    const QColor link =
        readableOn(palette().color(QPalette::Base), palette().color(QPalette::Link));
    document()->setDefaultStyleSheet(QString("a { color: %1 }").arg(link.name()));
}

void HelpPageView::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !source().isEmpty()) {
        colourLinks();
        reload(); // link colours are set while a page is read
    }
}

HelpViewer::HelpViewer(const QString& folder, const QString& language, QWidget* parent)
    : QWidget(parent, Qt::Window)
    , _folder(folder)
    , _language(language)
    , _pages(new HelpPageView(folder, this))
    , _findField(new QLineEdit(this))
    , _findResult(new AnnouncedLabel(this)) {
    auto* const buttons = new QHBoxLayout;
    auto* const back = addButton("helpBackButton", localizedQtText("Back"), QKeySequence::Back);
    auto* const forward =
        addButton("helpForwardButton", localizedQtText("Forward"), QKeySequence::Forward);
    auto* const contents = addButton("helpContentsButton", localizedQtText("Contents"),
                                     QKeySequence(Qt::ALT | Qt::Key_Home));
    auto* const close =
        addButton("helpCloseButton", localizedQtText("Close"), QKeySequence(Qt::Key_Escape));
    for (QPushButton* button : {back, forward, contents}) {
        buttons->addWidget(button);
    }
    buttons->addStretch();
    addFind(*buttons);
    buttons->addWidget(close);

    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(buttons);
    layout->addWidget(_pages);

    back->setEnabled(false);
    forward->setEnabled(false);
    connect(_pages, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(_pages, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
    connect(_pages, &QTextBrowser::sourceChanged, this, &HelpViewer::showTitle);
    connect(back, &QPushButton::clicked, _pages, &QTextBrowser::backward);
    connect(forward, &QPushButton::clicked, _pages, &QTextBrowser::forward);
    connect(contents, &QPushButton::clicked, _pages,
            [this] { _pages->setSource(urlOfPage("index")); });
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    auto* const closeKey = new QShortcut(QKeySequence::Close, this);
    connect(closeKey, &QShortcut::activated, this, &QWidget::close);

    drawFrameOnPixels(*_pages);
    (new ScreenFit(*this))->resize(QSize(760, 680));
}

QPushButton* HelpViewer::addButton(const char* objectName, const QString& text,
                                   const QKeySequence& key) {
    auto* const button = new QPushButton(text, this);
    button->setObjectName(objectName);
    button->setShortcut(key);
    return button;
}

QUrl HelpViewer::urlOfPage(const QString& page) const {
    return QUrl::fromLocalFile(fileInLanguage(QDir(_folder), page + ".html", _language));
}

void HelpViewer::showPage(const QString& page, const QString& book) {
    _book = book;
    _pages->setSource(urlOfPage(page));
    showTitle();
    show();
    raise();
    activateWindow();
    _pages->setFocus();
}

void HelpViewer::addFind(QLayout& row) {
    _findResult->setObjectName("helpFindResult");
    _findField->setObjectName("helpFindField");
    _findField->setClearButtonEnabled(true);
    _findField->setPlaceholderText(localizedQtText("Find in this page"));
    _findField->setAccessibleName(_findField->placeholderText());
    row.addWidget(_findResult);
    row.addWidget(_findField);
    const auto onKey = [this](QKeySequence::StandardKey key, auto action) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, action);
    };
    onKey(QKeySequence::Find, [this] {
        _findField->setFocus();
        _findField->selectAll();
    });
    onKey(QKeySequence::FindNext, [this] { find({}); });
    onKey(QKeySequence::FindPrevious, [this] { find(QTextDocument::FindBackward); });
    connect(_findField, &QLineEdit::returnPressed, this, [this] { find({}); });
}

// Goes on at the other end of the page.
void HelpViewer::find(QTextDocument::FindFlags direction) {
    const QString sought = _findField->text();
    if (sought.isEmpty()) {
        _findField->setFocus();
        return;
    }
    bool isFound = _pages->find(sought, direction);
    if (!isFound) {
        const QTextCursor before = _pages->textCursor();
        _pages->moveCursor(direction.testFlag(QTextDocument::FindBackward) ? QTextCursor::End
                                                                           : QTextCursor::Start);
        isFound = _pages->find(sought, direction);
        if (!isFound) {
            _pages->setTextCursor(before);
        }
    }
    _findResult->say(isFound ? QString() : localizedQtText("Not found"));
}

void HelpViewer::showTitle() {
    const QString page = _pages->documentTitle();
    setWindowTitle(page.isEmpty() || page == _book ? _book : page + " – " + _book);
}

} // namespace kx
