#include "platform/qt/QtPopUpButton.h"

#include "platform/qt/QtText.h"

#include <QListView>
#include <QSet>
#include <ranges>

namespace kx {

QtPopUpButton::QtPopUpButton(QComboBox& comboBox)
    : _comboBox(comboBox) {
    QStringList titles;
    for (int index = 0; index < comboBox.count(); ++index) {
        titles.append(comboBox.itemText(index));
    }
    const int selected = comboBox.currentIndex();
    comboBox.setModel(&_titles);
    if (auto* list = qobject_cast<QListView*>(comboBox.view())) {
        // Otherwise opening the list measures every title in it.
        list->setUniformItemSizes(true);
    }
    setTitles(titles, selected);
}

QtPopUpButton::~QtPopUpButton() = default;

void QtPopUpButton::removeAllItems() {
    setTitles({}, -1);
}

void QtPopUpButton::addItemsWithTitles(const std::vector<std::string>& titles) {
    // Seen from the end, the first item of a title is the one that stays.
    QSet<QString> seen;
    QStringList reversed;
    const auto keepFirst = [&](const QString& title) {
        if (!seen.contains(title)) {
            seen.insert(title);
            reversed.append(title);
        }
    };
    for (const std::string& title : titles | std::views::reverse) {
        keepFirst(qtText(title));
    }
    const QStringList before = _titles.stringList();
    for (const QString& title : before | std::views::reverse) {
        keepFirst(title);
    }

    const QStringList after(reversed.rbegin(), reversed.rend());
    const QString selected = _comboBox.currentText();
    const bool anySelected = _comboBox.currentIndex() >= 0;
    setTitles(after, anySelected ? static_cast<int>(after.indexOf(selected)) : 0);
}

void QtPopUpButton::selectItemAtIndex(int index) {
    if (index >= 0 && index < _comboBox.count()) {
        _comboBox.setCurrentIndex(index);
    }
}

void QtPopUpButton::selectItemWithTitle(std::string_view title) {
    _comboBox.setCurrentIndex(_indexOfTitle.value(qtText(title), -1));
}

std::optional<std::string> QtPopUpButton::titleOfSelectedItem() const {
    if (_comboBox.currentIndex() < 0) {
        return std::nullopt;
    }
    return utf8Text(_comboBox.currentText());
}

void QtPopUpButton::setEnabled(bool enabled) {
    _comboBox.setEnabled(enabled);
}

void QtPopUpButton::setTitles(const QStringList& titles, int selected) {
    _indexOfTitle.clear();
    _indexOfTitle.reserve(titles.size());
    for (int index = 0; index < titles.size(); ++index) {
        _indexOfTitle.insert(titles.at(index), index);
    }
    _titles.setStringList(titles);
    _comboBox.setCurrentIndex(selected < titles.size() ? selected : -1);
}

} // namespace kx
