#include "shell/KeysPage.h"

#include "shell/KeyedRows.h"
#include "shell/MenuText.h"
#include "shell/QtText.h"
#include "shell/SkinDialog.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace zentaro {

namespace {

/// Shows the key that is pressed in it. Tab, Esc and the letters with Alt stay what they are in a dialog.
class KeyEdit : public QLineEdit {
public:
    KeyEdit()
    {
        setReadOnly(true);
        setObjectName("NewKey");
    }
    std::string Key() const { return m_key; }
    void Forget()
    {
        m_key.clear();
        clear();
    }

protected:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::ShortcutOverride && IsTaken(*static_cast<QKeyEvent*>(event))) {
            event->accept();
            return true;
        }
        return QLineEdit::event(event);
    }
    void keyPressEvent(QKeyEvent* event) override
    {
        if (!IsTaken(*event))
            return QLineEdit::keyPressEvent(event);
        const QKeySequence pressed(QKeyCombination(event->modifiers() & ~Qt::KeypadModifier, Qt::Key(event->key())));
        m_key = ToText(pressed.toString(QKeySequence::PortableText));
        setText(KeyName(m_key));
    }

private:
    static bool IsTaken(const QKeyEvent& event)
    {
        const int key = event.key();
        const bool isModifier = key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Meta
            || key == Qt::Key_Alt || key == Qt::Key_AltGr || key == Qt::Key_unknown;
        const bool isDialogs = key == Qt::Key_Tab || key == Qt::Key_Backtab || key == Qt::Key_Escape
            || (event.modifiers().testFlag(Qt::AltModifier) && key < Qt::Key_Escape);
        return !isModifier && !isDialogs;
    }

    std::string m_key;
};

QPushButton* MakeButton(const QString& text, Skin& skin)
{
    auto* const button = new SkinPushButton(text, skin, nullptr);
    button->setAutoDefault(false);
    return button;
}

} // namespace

KeysPage::KeysPage(KeyChoices choices, Skin& skin)
    : m_choices(std::move(choices))
    , m_taken(m_choices.keys)
    , m_rows(new KeyedRows(this))
    , m_newKey(new KeyEdit)
    , m_user(SecondText({}))
{
    m_rows->setAccessibleName(tr("Commands"));
    m_rows->setMinimumHeight(120);
    for (const auto& row : m_choices.rows)
        m_rows->Add(row.id, ToQString(row.name), m_choices.keys.at(row.id));
    m_rows->setCurrentRow(0);
    auto* const label = new QLabel(tr("Ne&w key:"));
    label->setBuddy(m_newKey);
    m_newKey->setPlaceholderText(tr("Press it here"));
    m_newKey->setMinimumWidth(110);
    m_user->setWordWrap(true);
    m_user->setMinimumHeight(2 * fontMetrics().height());
    auto* const add = MakeButton(tr("A&dd"), skin);
    auto* const none = MakeButton(tr("No Ke&y"), skin);
    auto* const defaults = MakeButton(tr("All as Del&ivered"), skin);
    auto* const line = new QHBoxLayout;
    line->setSpacing(8);
    line->addWidget(label);
    line->addWidget(m_newKey, 1);
    line->addWidget(add);
    line->addWidget(none);
    auto* const below = new QHBoxLayout;
    below->addWidget(m_user, 1);
    below->addWidget(defaults, 0, Qt::AlignTop);
    auto* const all = new QVBoxLayout(this);
    all->setContentsMargins(20, 16, 20, 12);
    all->setSpacing(9);
    all->addWidget(m_rows, 1);
    all->addLayout(line);
    all->addLayout(below);
    connect(m_newKey, &QLineEdit::textChanged, this, &KeysPage::ShowUser);
    connect(m_rows, &QListWidget::currentRowChanged, this, &KeysPage::ShowUser);
    connect(add, &QPushButton::clicked, this, &KeysPage::AddKey);
    connect(none, &QPushButton::clicked, this, [this] {
        auto keys = m_choices.keys;
        keys[m_rows->IdOf(m_rows->currentRow())].clear();
        SetKeys(std::move(keys));
    });
    connect(defaults, &QPushButton::clicked, this, [this] { SetKeys(m_choices.defaults); });
}

void KeysPage::Commit()
{
    m_taken = m_choices.keys;
    m_choices.take(m_taken);
}

QString KeysPage::NameOf(const std::string& id) const
{
    const auto at = std::ranges::find(m_choices.rows, id, &KeyChoices::Row::id);
    return at == m_choices.rows.end() ? QString() : ToQString(at->name);
}

void KeysPage::ShowUser()
{
    const auto key = static_cast<KeyEdit*>(m_newKey)->Key();
    const auto user =
        key.empty() ? std::string() : m_choices.userOf(m_choices.keys, key, m_rows->IdOf(m_rows->currentRow()));
    m_user->setText(user.empty() ? QString() : tr("It is the key of “%1”, which loses it.").arg(NameOf(user)));
    m_newKey->setAccessibleDescription(m_user->text());
}

void KeysPage::AddKey()
{
    const auto key = static_cast<KeyEdit*>(m_newKey)->Key();
    const auto id = m_rows->IdOf(m_rows->currentRow());
    if (key.empty() || id.empty())
        return;
    auto keys = m_choices.keys;
    for (auto user = m_choices.userOf(keys, key, id); !user.empty(); user = m_choices.userOf(keys, key, id))
        std::erase(keys[user], key);
    if (auto& mine = keys[id]; std::ranges::find(mine, key) == mine.end())
        mine.push_back(key);
    SetKeys(std::move(keys));
    static_cast<KeyEdit*>(m_newKey)->Forget();
}

void KeysPage::SetKeys(KeyChoices::Table keys)
{
    m_choices.keys = std::move(keys);
    for (int row = 0; row < m_rows->count(); ++row)
        m_rows->ShowKeys(row, m_choices.keys[m_rows->IdOf(row)]);
    ShowUser();
    emit Changed();
}

} // namespace zentaro
