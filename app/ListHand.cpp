#include "app/ListHand.h"

#include "app/Commands.h"
#include "app/Player.h"
#include "app/WindowMenus.h"
#include "base/Words.h"
#include "platform/Window.h"
#include "playlist/FancyList.h"
#include "shell/Announcer.h"
#include "shell/HelpTopic.h"
#include "shell/QtText.h"

#include <chrono>
#include <utility>

namespace zentaro {

namespace {

using namespace std::chrono_literals;

// The rows, in pixels.
constexpr int kRow = 80;
constexpr int kPadding = 8;
constexpr int kCompactRow = 46;
constexpr int kCompactPadding = 4;
constexpr auto kProgressDelay = 700ms;

} // namespace

ListHand::ListHand(Player& player, FancyList& list, WindowMenus& menus)
    : m_player(player)
    , m_list(list)
    , m_menus(menus)
{
    m_list.setObjectName("FancyList1");
    SetHelpTopic(m_list, "playlist");
    ShowRowHeight(false);
    m_progressDelay.setSingleShot(true);
    m_progressDelay.setInterval(kProgressDelay);
    QObject::connect(&m_progressDelay, &QTimer::timeout, &m_list, [this] { m_list.ShowAddProgress(m_progress); });
    m_list.describe = [this](int row) {
        const auto entry = std::as_const(m_player).Entries().EntryAt(row);
        return entry ? ToQString(DetailText(entry->Facts) + "\n" + entry->MediaInfo).remove('\r').trimmed() : QString();
    };
    PassOn();
}

void ListHand::PassOn()
{
    const auto on = [this](auto signal, auto act) { QObject::connect(&m_list, signal, &m_list, act); };
    on(&FancyList::Click, [this] { m_player.Sequence().ListClicked(); });
    on(&FancyList::DblClick, [this] { m_player.Sequence().ListDoubleClicked(); });
    on(&FancyList::MouseDown, [this](Qt::MouseButton button, Qt::KeyboardModifiers, int x, int y) {
        if (button != Qt::RightButton)
            return;
        m_player.Sequence().ListRightPressed(m_list.Layout().RowAt(y));
        m_menus.Popup("mnuPlayListmenu", m_list.mapToGlobal(QPoint(x, y)));
    });
    on(&FancyList::CancelAdding, [this] { m_player.Files().CancelAdding(); });
    on(&FancyList::CardTaken, [this] { TakeCard(); });
    on(&FancyList::RowsDragged, [this](int to) { m_player.Editing().MoveTo(to); });
    on(&FancyList::MenuAsked, [this](const QPoint& at) { m_menus.PopupListMenu(at); });
    on(&FancyList::OLEDragDrop,
        [this](const QMimeData* dropped) { m_player.Files().DropOnList(DroppedPaths(*dropped)); });
}

void ListHand::Show()
{
    ShowAddProgress();
    m_list.SetPaused(m_player.State().isPaused);
    TellWhatPlays();
    const auto& entries = std::as_const(m_player).Entries();
    m_list.SetCard(Card());
    // It is offered once; whoever has found the way without it needs it no more.
    if (entries.Count() > 0 && OffersWays())
        m_player.Choices().Set(Choice::KnowsOfWays, true);
    if (std::exchange(m_toldRevision, entries.Revision()) != entries.Revision())
        m_list.SetFoot(ToQString(SummaryText(entries)));
    const bool isCompact = m_player.Choices().Has(Choice::LowRows);
    if (std::exchange(m_isCompact, isCompact) != isCompact)
        ShowRowHeight(isCompact);
}

bool ListHand::OffersWays() const
{
    return !m_player.Choices().Has(Choice::KnowsOfWays) && !m_player.Ways().isFamiliar;
}

QString ListHand::Card() const
{
    if (m_player.Entries().Count() > 0)
        return {};
    if (const auto last = m_player.Remembering().LastTime(); !last.empty())
        return ToQString(last + "\n" + Words("Click or press Enter to bring it back"));
    return OffersWays() ? ToQString(Words("Used to other players? Click or press Enter to take their ways"))
                        : QString();
}

void ListHand::TakeCard()
{
    if (!m_player.Remembering().LastTime().empty())
        return RunCommand(m_player, "BringBack");
    m_player.Choices().Set(Choice::KnowsOfWays, true);
    RunCommand(m_player, "FamiliarWays");
}

void ListHand::TellWhatPlays()
{
    const auto& entries = std::as_const(m_player).Entries();
    const int row = entries.List().PlayingItem();
    const auto path = row >= 0 ? entries.PathAt(row) : std::string();
    if (std::exchange(m_playing, path) != path && row >= 0 && m_list.window()->isVisible())
        Announce(*m_list.window(), ToQString(Words("%1, playing", { entries.List().Item(row).Text })));
}

void ListHand::ShowRowHeight(bool isCompact)
{
    m_list.SetPadding(isCompact ? kCompactPadding : kPadding);
    const int row = isCompact ? kCompactRow : kRow;
    m_list.SetImageWidth(row - 2 * m_list.Padding());
    m_list.SetImageHeight(row - 2 * m_list.Padding());
    m_list.SetItemHeight(row);
}

void ListHand::ShowAddProgress()
{
    const auto progress = m_player.Files().Adding();
    if (std::exchange(m_progress, progress) == progress)
        return;
    platform::ShowProgress(m_list.window()->winId(), progress.current, progress.total);
    // One file is opened in a moment; the line comes only when that moment grows long.
    if (progress.total == 1)
        m_progressDelay.start();
    else
        m_list.ShowAddProgress(progress);
}

} // namespace zentaro
