#include "platform/qt/QtPopUpButton.h"

#include "platform/qt/QtText.h"
#include "platform/qt/UniformListView.h"

#include <algorithm>
#include <utility>

namespace kx {

namespace {

// More than fit on a screen.
constexpr int longList = 80;

// The list of a combo box that opens like a menu measures every title first.
class ScrollingListStyle final : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override {
        const auto* const comboBox = qobject_cast<const QComboBox*>(widget);
        const bool isLong = comboBox != nullptr && comboBox->count() > longList;
        return hint == SH_ComboBox_Popup && isLong
                   ? 0
                   : QProxyStyle::styleHint(hint, option, widget, returned);
    }
};

} // namespace

QtPopUpButton::QtPopUpButton(QComboBox& comboBox)
    : _comboBox(comboBox) {
    const QString selected = comboBox.currentText();
    for (int index = 0; index < comboBox.count(); ++index) {
        addTitle(comboBox.itemText(index));
    }
    comboBox.setModel(&_model);
    showTitles(selected);
}

QtPopUpButton::~QtPopUpButton() {
    if (_styleOfLongList != nullptr) {
        _comboBox.setStyle(nullptr);
    }
}

void QtPopUpButton::removeAllItems() {
    _titles.clear();
    _indexOfTitle.clear();
    _isAscending = true;
    showTitles({});
}

void QtPopUpButton::addItemsWithTitles(const std::vector<std::string>& titles) {
    const bool anySelected = _comboBox.currentIndex() >= 0;
    const QString selected = _comboBox.currentText();
    _titles.reserve(_titles.size() + static_cast<qsizetype>(titles.size()));
    for (const std::string& title : titles) {
        addTitle(qtText(title));
    }
    closeGaps();
    showTitles(anySelected || _titles.isEmpty() ? selected : _titles.front());
}

// Titles that come in order differ from each other, which spares the index.
void QtPopUpButton::addTitle(const QString& title) {
    if (_isAscending && !_titles.isEmpty() && !(_titles.back() < title)) {
        _isAscending = false;
        for (qsizetype index = 0; index < _titles.size(); ++index) {
            _indexOfTitle.insert(_titles.at(index), index);
        }
    }
    if (!_isAscending) {
        const qsizetype known = _indexOfTitle.size();
        qsizetype& index = _indexOfTitle[title];
        _hasGaps = _hasGaps || _indexOfTitle.size() == known;
        index = _titles.size();
    }
    _titles.append(title);
}

void QtPopUpButton::closeGaps() {
    if (!std::exchange(_hasGaps, false)) {
        return;
    }
    qsizetype kept = 0;
    for (qsizetype index = 0; index < _titles.size(); ++index) {
        qsizetype& place = _indexOfTitle[_titles.at(index)];
        if (place == index) {
            place = kept;
            _titles.swapItemsAt(kept, index);
            ++kept;
        }
    }
    _titles.resize(kept);
}

int QtPopUpButton::indexOf(const QString& title) const {
    if (!_isAscending) {
        return static_cast<int>(_indexOfTitle.value(title, -1));
    }
    const auto place = std::lower_bound(_titles.begin(), _titles.end(), title);
    const bool isThere = place != _titles.end() && *place == title;
    return isThere ? static_cast<int>(place - _titles.begin()) : -1;
}

void QtPopUpButton::showTitles(const QString& selected) {
    _model.setStringList(_titles);
    if (_titles.size() > longList) {
        prepareForLongList();
    }
    _comboBox.setCurrentIndex(indexOf(selected));
}

void QtPopUpButton::prepareForLongList() {
    if (_styleOfLongList == nullptr) {
        _comboBox.hidePopup(); // the list that may be open is about to be another
        _styleOfLongList = std::make_unique<ScrollingListStyle>();
        _comboBox.setStyle(_styleOfLongList.get());
        _comboBox.setView(new UniformListView);
    }
}

void QtPopUpButton::selectItemAtIndex(int index) {
    if (index >= 0 && index < _comboBox.count()) {
        _comboBox.setCurrentIndex(index);
    }
}

void QtPopUpButton::selectItemWithTitle(std::string_view title) {
    _comboBox.setCurrentIndex(indexOf(qtText(title)));
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

} // namespace kx
