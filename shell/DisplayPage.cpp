#include "shell/DisplayPage.h"

#include "shell/QtText.h"
#include "shell/SkinDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <utility>

namespace zentaro {

namespace {

constexpr int kScales[] = { 100, 125, 150, 175, 200, 250, 300 }; // percent

struct Language {
    const char* code;
    const char* name; // in itself
};
constexpr Language kLanguages[] = { { "en", "English" }, { "de", "Deutsch" }, { "fr", "Français" }, { "es", "Español" },
    { "ja", "日本語" } };

} // namespace

DisplayPage::DisplayPage(const DisplayChoices& choices, std::function<void(const DisplayChoices&)> take)
    : m_choices(choices)
    , m_taken(choices)
    , m_take(std::move(take))
{
    auto* const language = new QComboBox;
    language->addItem(tr("As the system"), QString());
    for (const auto& each : kLanguages)
        language->addItem(QString::fromUtf8(each.name), QString(each.code));
    language->setCurrentIndex(std::max(language->findData(ToQString(choices.language)), 0));
    auto* const scale = new QComboBox;
    for (const int percent : kScales)
        scale->addItem(tr("%1 %").arg(percent), percent);
    scale->setCurrentIndex(std::max(scale->findData(choices.scale), 0));
    auto* const form = new QFormLayout;
    form->setHorizontalSpacing(16);
    form->setVerticalSpacing(12);
    form->addRow(tr("&Language:"), language);
    form->addRow(tr("Si&ze of everything:"), scale);
    auto* const all = new QVBoxLayout(this);
    all->setContentsMargins(20, 16, 20, 12);
    all->setSpacing(9);
    all->addLayout(form);
    all->addSpacing(9);
    AddFlag(tr("Hi&gh contrast"), &DisplayChoices::highContrast);
    AddFlag(tr("Less &motion"), &DisplayChoices::lessMotion);
    all->addSpacing(9);
    auto* const note = SecondText(tr("What is chosen here counts from the next start on."));
    note->setWordWrap(true);
    all->addWidget(note);
    all->addStretch();
    connect(language, &QComboBox::currentIndexChanged, this, [this, language] {
        m_choices.language = ToText(language->currentData().toString());
        emit Changed();
    });
    connect(scale, &QComboBox::currentIndexChanged, this, [this, scale] {
        m_choices.scale = scale->currentData().toInt();
        emit Changed();
    });
}

void DisplayPage::AddFlag(const QString& text, bool DisplayChoices::*field)
{
    auto* const box = new QCheckBox(text);
    box->setChecked(m_choices.*field);
    connect(box, &QCheckBox::toggled, this, [this, field](bool on) {
        m_choices.*field = on;
        emit Changed();
    });
    layout()->addWidget(box);
}

void DisplayPage::Commit()
{
    m_taken = m_choices;
    m_take(m_taken);
}

} // namespace zentaro
