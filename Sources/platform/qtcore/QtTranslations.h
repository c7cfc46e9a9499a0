// The translations for the user: the program's own texts, and those of Qt, such as the buttons of
// message boxes.
//
// The program carries its own translations in itself. Qt's translations are used where the system
// has them in the same language; elsewhere the buttons of message boxes stay English.
//
// Needs a QCoreApplication, and must be destroyed before it. Main thread only.

#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>
#include <QTranslator>

namespace kx {

class QtTranslations final {
public:
    // Installs the translations of the first language that the program has. `languages` are names
    // such as "de-AT", in the order in which the user prefers them. The program is written in
    // English, so a user who prefers English to another language gets English.
    explicit QtTranslations(const QStringList& languages = QLocale::system().uiLanguages());

    // The language of the texts, as in "de"; "en" without a translation.
    QString language() const { return _language; }

    // The languages that there are translations for, in alphabetical order.
    static QStringList available();

private:
    QString _language;
    QTranslator _ownTexts;
    QTranslator _textsOfQt;
};

} // namespace kx
