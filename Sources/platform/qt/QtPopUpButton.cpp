#include "platform/qt/QtPopUpButton.h"

#include "platform/qt/DetailDelegate.h"
#include "platform/qt/QtText.h"
#include "platform/qt/UniformListView.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <ranges>
#include <unordered_set>
#include <utility>
#include <vector>

namespace kx {

namespace {

// As many titles as a person takes in at once.
constexpr int rowsInSight = 20;

// More titles than fit on a screen.
constexpr int longList = 80;

// The list of a combo box that opens like a menu measures every title first, so long lists do not
// open in this way. A selected title that is dimmed in the list is dimmed in the closed combo box
// too.
class PopUpStyle final : public QProxyStyle {
public:
    explicit PopUpStyle(const TitleListModel& model)
        : _model(model) {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override {
        const auto* const comboBox = qobject_cast<const QComboBox*>(widget);
        const bool isLong = comboBox != nullptr && comboBox->count() > longList;
        return hint == SH_ComboBox_Popup && isLong
                   ? 0
                   : QProxyStyle::styleHint(hint, option, widget, returned);
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        const auto* const comboBox = qobject_cast<const QComboBox*>(widget);
        const auto* const label = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        if (element != CE_ComboBoxLabel || comboBox == nullptr || label == nullptr ||
            !_model.isDimmed(comboBox->currentIndex())) {
            QProxyStyle::drawControl(element, option, painter, widget);
            return;
        }
        QStyleOptionComboBox dimmed = *label;
        for (const QPalette::ColorRole role :
             {QPalette::ButtonText, QPalette::Text, QPalette::WindowText}) {
            dimmed.palette.setColor(role, dimmedColour(dimmed.palette.color(role),
                                                       dimmed.palette.color(QPalette::Button)));
        }
        QProxyStyle::drawControl(element, &dimmed, painter, widget);
    }

private:
    const TitleListModel& _model;
};

// Whether each title comes after the one before it. No two titles are then equal.
bool isAscending(const TitleList& titles) {
    return std::ranges::adjacent_find(titles, std::ranges::greater_equal()) == titles.end();
}

// The titles without repetitions. The last of several equal titles stays.
TitleList withoutRepetitions(const TitleList& titles) {
    std::vector<std::string_view> kept;
    std::unordered_set<std::string_view> known;
    for (const std::string_view title : titles | std::views::reverse) {
        if (known.insert(title).second) {
            kept.push_back(title);
        }
    }
    TitleList list;
    list.append(kept | std::views::reverse);
    return list;
}

// Both lists are usually in order, and are then compared in one pass.
TitleList joined(const TitleList& titles, const TitleList& added, bool areAscending) {
    TitleList all;
    all.reserve(titles.size() + added.size(), titles.bytes() + added.bytes());
    if (areAscending) {
        std::ranges::set_difference(titles, added, std::back_inserter(all));
        all.append(added);
        return all;
    }
    all.append(titles);
    all.append(added);
    return withoutRepetitions(all);
}

} // namespace

QtPopUpButton::QtPopUpButton(QComboBox& comboBox)
    : _comboBox(comboBox) {
    comboBox.setMaxVisibleItems(rowsInSight);
    const QString selected = comboBox.currentText();
    TitleList titles;
    for (int index = 0; index < comboBox.count(); ++index) {
        titles.push_back(utf8Text(comboBox.itemText(index)));
    }
    comboBox.setModel(&_model);
    _selection = QObject::connect(&comboBox, &QComboBox::currentIndexChanged, &comboBox,
                                  [this] { describeSelectedTitle(); });
    addItemsWithTitles(std::move(titles));
    selectItemWithTitle(utf8Text(selected));
    describeSelectedTitle();
}

QtPopUpButton::~QtPopUpButton() {
    QObject::disconnect(_selection);
    if (_ownStyle != nullptr) {
        _comboBox.setStyle(nullptr);
    }
}

void QtPopUpButton::removeAllItems() {
    showTitles({}, true, {});
}

void QtPopUpButton::addItemsWithTitles(TitleList titles) {
    const auto selected = titleOfSelectedItem();
    bool areAscending = isAscending(titles);
    if (_model.rowCount() > 0 || !areAscending) {
        titles = joined(_model.titles(), titles, _isAscending && areAscending);
        areAscending = isAscending(titles);
    }
    const std::string first(titles.empty() ? "" : titles[0]);
    showTitles(std::move(titles), areAscending, selected.value_or(first));
}

int QtPopUpButton::indexOf(std::string_view title) const {
    if (_isAscending) {
        const TitleList& titles = _model.titles();
        const auto place = std::ranges::lower_bound(titles, title);
        const bool isThere = place != titles.end() && *place == title;
        return isThere ? static_cast<int>(place - titles.begin()) : -1;
    }
    const auto found = _indexOfTitle.find(title);
    return found != _indexOfTitle.end() ? found->second : -1;
}

void QtPopUpButton::showTitles(TitleList titles, bool areAscending, std::string_view selected) {
    _indexOfTitle.clear(); // it refers to the old titles
    _model.setTitles(std::move(titles));
    _isAscending = areAscending;
    if (!_isAscending) {
        for (const std::string_view title : _model.titles()) {
            _indexOfTitle.emplace(title, static_cast<int>(_indexOfTitle.size()));
        }
    }
    if (_model.rowCount() > longList) {
        prepareForLongList();
    }
    _comboBox.setCurrentIndex(indexOf(selected));
}

void QtPopUpButton::prepareForLongList() {
    if (!std::exchange(_hasLongList, true)) {
        _comboBox.hidePopup(); // an open list would show the old titles
        useOwnStyle();
        _comboBox.setView(new UniformListView);
        if (_detailDelegate != nullptr) {
            _comboBox.setItemDelegate(_detailDelegate);
        }
    }
}

void QtPopUpButton::useOwnStyle() {
    if (_ownStyle == nullptr) {
        _ownStyle = std::make_unique<PopUpStyle>(_model);
        _comboBox.setStyle(_ownStyle.get());
    }
}

void QtPopUpButton::selectItemAtIndex(int index) {
    if (index >= 0 && index < _comboBox.count()) {
        _comboBox.setCurrentIndex(index);
    }
}

void QtPopUpButton::selectItemWithTitle(std::string_view title) {
    _comboBox.setCurrentIndex(indexOf(title));
}

std::optional<std::string> QtPopUpButton::titleOfSelectedItem() const {
    if (_comboBox.currentIndex() < 0) {
        return std::nullopt;
    }
    return std::string(_model.titles()[static_cast<std::size_t>(_comboBox.currentIndex())]);
}

void QtPopUpButton::setEnabled(bool enabled) {
    _comboBox.setEnabled(enabled);
}

void QtPopUpButton::setDimming(std::function<bool(std::string_view title)> isDimmed,
                               std::string_view description) {
    if (isDimmed) {
        useOwnStyle();
    }
    _model.setDimming(std::move(isDimmed), qtText(description));
    describeSelectedTitle();
}

void QtPopUpButton::refreshDimming() {
    _model.refreshDimming();
    describeSelectedTitle();
    _comboBox.update();
}

void QtPopUpButton::setDescription(std::string_view text) {
    _comboBox.setToolTip(qtText(text));
    describeSelectedTitle();
}

// A screen reader reads the closed combo box without asking its list. Where nothing is selected it
// reads what stands there instead.
void QtPopUpButton::describeSelectedTitle() {
    const int selected = _comboBox.currentIndex();
    QString description = selected < 0 ? _comboBox.placeholderText() : _comboBox.toolTip();
    if (_model.isDimmed(selected)) {
        description = _model.dimmedDescription();
    }
    if (_comboBox.accessibleDescription() != description) {
        _comboBox.setAccessibleDescription(description);
    }
}

void QtPopUpButton::setDetails(TitleListModel::Details details) {
    _model.setDetails(std::move(details));
    if (_detailDelegate == nullptr) {
        _detailDelegate = new DetailDelegate(&_comboBox);
        _comboBox.setItemDelegate(_detailDelegate);
    }
}

} // namespace kx
