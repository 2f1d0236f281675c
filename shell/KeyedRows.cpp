#include "shell/KeyedRows.h"

#include "shell/Announcer.h"
#include "shell/MenuText.h"
#include "shell/QtText.h"
#include "shell/Style.h"

#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>
#include <utility>

namespace zentaro {

namespace {

constexpr int kRowHeight = 28; // px
constexpr int kEdge = 10;      // px
constexpr int kKeys = Qt::UserRole;
constexpr int kId = Qt::UserRole + 1;

class RowFace : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override
    {
        return { 0, std::max(kRowHeight, option.fontMetrics.height() + kEdge) };
    }
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const bool isSelected = option.state & QStyle::State_Selected;
        const auto colour = [&](const QColor& usual) {
            return isSelected && style::HasHighContrast() ? style::kSelected : usual;
        };
        if (isSelected)
            painter->fillRect(option.rect, style::kSelection);
        if (isSelected && option.widget->hasFocus())
            painter->fillRect(option.rect.left(), option.rect.top(), 3, option.rect.height(), style::kLight);
        const auto place = option.rect.adjusted(kEdge, 0, -kEdge, 0);
        const auto keys = index.data(kKeys).toString();
        painter->setFont(option.font);
        painter->setPen(colour(style::kSecondText));
        painter->drawText(place, Qt::AlignVCenter | Qt::AlignRight, keys);
        painter->setPen(colour(index.flags().testFlag(Qt::ItemIsEnabled) ? style::kText : style::kSecondText));
        const int room = place.width() - option.fontMetrics.horizontalAdvance(keys) - kEdge;
        const auto name = index.data(Qt::DisplayRole).toString();
        painter->drawText(
            place, Qt::AlignVCenter | Qt::AlignLeft, option.fontMetrics.elidedText(name, Qt::ElideRight, room));
    }
};

} // namespace

KeyedRows::KeyedRows(QWidget* parent)
    : QListWidget(parent)
{
    setItemDelegate(new RowFace(this));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setUniformItemSizes(true);
}

KeyedRows::~KeyedRows()
{
    for (const auto* const row : m_all) {
        if (row->listWidget() == nullptr)
            delete row;
    }
}

void KeyedRows::Add(const std::string& id, const QString& name, const std::vector<std::string>& keys, bool isUsable)
{
    auto* const item = m_all.emplace_back(new QListWidgetItem(name, this));
    item->setData(kId, ToQString(id));
    if (!isUsable)
        item->setFlags(item->flags() & ~Qt::ItemIsEnabled);
    ShowKeys(row(item), keys);
}

void KeyedRows::ShowKeys(int row, const std::vector<std::string>& keys)
{
    QStringList names;
    for (const auto& key : keys)
        names << KeyName(key);
    auto* const shown = item(row);
    shown->setData(kKeys, names.join(",  "));
    names.prepend(shown->text());
    shown->setData(Qt::AccessibleTextRole, names.join(", "));
}

std::string KeyedRows::IdOf(int row) const
{
    return row < 0 ? std::string() : ToText(item(row)->data(kId).toString());
}

void KeyedRows::Search(const QString& words)
{
    const auto wanted = words.simplified().split(' ', Qt::SkipEmptyParts);
    // Rows that were only hidden would be counted by those who have them read out. While none is chosen
    // none is read on the way.
    setCurrentRow(-1);
    while (count() > 0)
        takeItem(count() - 1);
    for (auto* const row : m_all) {
        const auto text = row->text() + ' ' + row->data(kKeys).toString();
        if (std::ranges::all_of(wanted, [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); }))
            addItem(row);
    }
    setCurrentRow(count() > 0 ? 0 : -1);
}

void KeyedRows::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    if (hasFocus() || !isVisible())
        return QListWidget::currentChanged(current, previous);
    // While words are typed elsewhere, a row that is told of as the present one would count as where the keys go.
    update(previous);
    if (!current.isValid())
        return;
    update(current);
    scrollTo(current);
    const auto text = current.data(Qt::AccessibleTextRole).toString();
    if (std::exchange(m_told, text) != text)
        Announce(*window(), text);
}

void KeyedRows::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    hasFocus() ? QListWidget::selectionChanged(selected, deselected)
               : QAbstractItemView::selectionChanged(selected, deselected);
}

} // namespace zentaro
