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
    AddWish(*form, tr("&Contrast:"), tr("Usual"), tr("High"), &DisplayChoices::highContrast);
    AddWish(*form, tr("&Motion:"), tr("Usual"), tr("Less"), &DisplayChoices::lessMotion);
    auto* const all = new QVBoxLayout(this);
    all->setContentsMargins(20, 16, 20, 12);
    all->setSpacing(9);
    all->addLayout(form);
    all->addSpacing(9);
    auto* const fingers = new QCheckBox(tr("Larger controls, for &fingers"));
    fingers->setChecked(choices.forFingers);
    all->addWidget(fingers);
    all->addSpacing(9);
    auto* const note = SecondText(tr("Language and size count from the next start on."));
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
    connect(fingers, &QCheckBox::toggled, this, [this](bool on) {
        m_choices.forFingers = on;
        emit Changed();
    });
}

void DisplayPage::AddWish(QFormLayout& form, const QString& text, const QString& no, const QString& yes,
    std::optional<bool> DisplayChoices::*field)
{
    auto* const box = new QComboBox;
    box->addItems({ tr("As the system"), no, yes });
    const auto& chosen = m_choices.*field;
    box->setCurrentIndex(chosen ? 1 + *chosen : 0);
    connect(box, &QComboBox::currentIndexChanged, this, [this, field](int row) {
        m_choices.*field = row > 0 ? std::optional(row > 1) : std::nullopt;
        emit Changed();
    });
    form.addRow(text, box);
}

void DisplayPage::Commit()
{
    m_taken = m_choices;
    m_take(m_taken);
}

} // namespace zentaro
