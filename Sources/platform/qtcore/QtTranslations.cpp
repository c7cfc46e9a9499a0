#include "platform/qtcore/QtTranslations.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>

namespace kx {

namespace {

const QString folder = QStringLiteral(":/translations"); // inside the program
const QString english = QStringLiteral("en");

// "de" of "de-AT" and of "de_AT".
QString languageOf(const QString& name) {
    return name.section('-', 0, 0).section('_', 0, 0);
}

QString chosenLanguage(const QStringList& languages) {
    const QStringList available = QtTranslations::available();
    for (const QString& name : languages) {
        QString language = languageOf(name);
        if (language == english || available.contains(language)) {
            return language;
        }
    }
    return english;
}

} // namespace

QtTranslations::QtTranslations(const QStringList& languages)
    : _language(chosenLanguage(languages)) {
    if (_language == english) {
        return;
    }
    // The translator that was installed last is asked first.
    if (_textsOfQt.load("qtbase_" + _language,
                        QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&_textsOfQt);
    }
    if (_ownTexts.load("kxconfig_" + _language, folder)) {
        QCoreApplication::installTranslator(&_ownTexts);
    }
}

QStringList QtTranslations::available() {
    QStringList languages;
    // A filter of names would load and compile regular expressions at every start.
    for (const QString& file : QDir(folder).entryList(QDir::Files, QDir::Name)) {
        if (file.startsWith("kxconfig_") && file.endsWith(".qm")) {
            languages.append(file.section('_', 1).section('.', 0, 0));
        }
    }
    return languages;
}

} // namespace kx
