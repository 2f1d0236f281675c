#include "app/CommandList.h"

#include "app/Commands.h"
#include "app/Player.h"
#include "base/Words.h"
#include "shell/HelpTopic.h"
#include "shell/KeyedRows.h"
#include "shell/QtText.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QVBoxLayout>

namespace zentaro {

namespace {

constexpr QSize kSize{ 440, 420 };
constexpr int kMargin = 14;

} // namespace

CommandList::CommandList(Player& player, Skin& skin, QWidget* owner)
    : SkinDialog(tr("Find a Command"), skin, owner)
    , m_words(new QLineEdit(this))
    , m_rows(new KeyedRows(this))
{
    setObjectName("CommandList");
    SetHelpTopic(*this, "keys");
    m_words->setPlaceholderText(tr("Type what it does, or its key"));
    m_words->setAccessibleName(tr("Find a Command"));
    m_words->installEventFilter(this);
    m_rows->setAccessibleName(tr("Commands"));
    auto* const all = new QVBoxLayout(this);
    all->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    all->setSpacing(8);
    all->addWidget(m_words);
    all->addWidget(m_rows, 1);
    all->addWidget(SecondText(tr("Enter runs the command."), this));
    Fill(player);
    m_rows->Search({});
    setFixedSize(Fitting(kSize));
    connect(m_words, &QLineEdit::textChanged, m_rows, &KeyedRows::Search);
    connect(m_rows, &QListWidget::itemActivated, this, &CommandList::RunCurrent);
    connect(m_rows, &QListWidget::itemClicked, this, &CommandList::RunCurrent);
    m_words->setFocus();
}

void CommandList::Fill(Player& player)
{
    for (const auto& command : AllCommands()) {
        const auto name = ListedName(command);
        if (name.empty())
            continue;
        const auto* const item = player.BothMenus().SmartMenuXP1.Find(command.id);
        const bool canRun =
            item != nullptr ? item->enabled : command.isAvailable == nullptr || command.isAvailable(player);
        m_rows->Add(std::string(command.id), ToQString(Words(name)), player.Keys().KeysOf(command.id), canRun);
    }
}

void CommandList::RunCurrent()
{
    const auto* const row = m_rows->currentItem();
    if (row == nullptr || !row->flags().testFlag(Qt::ItemIsEnabled))
        return;
    const auto id = m_rows->IdOf(m_rows->currentRow());
    accept();
    emit Chosen(id);
}

bool CommandList::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_words || event->type() != QEvent::KeyPress)
        return SkinDialog::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        RunCurrent();
        return true;
    }
    // The rows are walked while the words are typed.
    const bool isWalk = key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
    return isWalk && QCoreApplication::sendEvent(m_rows, event);
}

void CommandList::PaintBody(QPainter& painter)
{
    Pictures().Draw(painter, SkinImage::BGCd, { 0, kTitleHeight, width(), height() - kTitleHeight });
}

} // namespace zentaro
