#include "shell/WaysPage.h"

#include "shell/SkinDialog.h"

#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include <utility>

namespace zentaro {

WaysPage::WaysPage(const WayChoices& choices, std::function<void(const WayChoices&)> take)
    : m_choices(choices)
    , m_taken(choices)
    , m_take(std::move(take))
{
    auto* const all = new QVBoxLayout(this);
    all->setContentsMargins(20, 16, 20, 12);
    all->setSpacing(9);
    auto* const own = new QRadioButton(tr("&Zentaro's own ways"));
    own->setChecked(!choices.familiar);
    all->addWidget(own);
    AddSwitch(new QRadioButton(tr("Ways &familiar from other players")), &WayChoices::familiar);
    auto* const note =
        SecondText(tr("With these, Play goes on from a pause, Next and Previous follow the shuffled order, a click in "
                      "the list does not change what follows, all known types of files are taken, and the last list "
                      "comes back by itself. The help names the rest."));
    note->setWordWrap(true);
    all->addWidget(note);
    all->addSpacing(9);
    AddSwitch(new QCheckBox(tr("&Remember lists and places")), &WayChoices::remembers);
    AddSwitch(new QCheckBox(tr("Also of &discs that are taken out")), &WayChoices::remembersRemovable);
    AddSwitch(new QCheckBox(tr("&Low rows in the list")), &WayChoices::lowRows);
    all->addStretch();
}

void WaysPage::AddSwitch(QAbstractButton* button, bool WayChoices::*field)
{
    button->setChecked(m_choices.*field);
    connect(button, &QAbstractButton::toggled, this, [this, field](bool on) {
        m_choices.*field = on;
        emit Changed();
    });
    layout()->addWidget(button);
}

void WaysPage::Commit()
{
    m_taken = m_choices;
    m_take(m_taken);
}

} // namespace zentaro
