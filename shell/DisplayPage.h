#pragma once

#include "shell/OptionsPage.h"

#include <functional>
#include <optional>
#include <string>

class QFormLayout;

namespace zentaro {

/// How the window is shown to those who need it otherwise. Language and size count from the next start on.
struct DisplayChoices {
    std::string language;             ///< "de"; empty: the system's
    int scale = 100;                  ///< percent
    std::optional<bool> highContrast; ///< nothing: as the system has it; so in the next
    std::optional<bool> lessMotion;
    bool forFingers = false; ///< nothing that is pressed is smaller than 32 pixels
    bool operator==(const DisplayChoices&) const = default;
};

class DisplayPage : public OptionsPage {
    Q_OBJECT

public:
    DisplayPage(const DisplayChoices& choices, std::function<void(const DisplayChoices&)> take);

    QString Title() const override { return tr("Appeara&nce"); }
    bool IsChanged() const override { return m_choices != m_taken; }
    void Commit() override;

private:
    void AddWish(QFormLayout& form, const QString& text, const QString& no, const QString& yes,
        std::optional<bool> DisplayChoices::*field);

    DisplayChoices m_choices;
    DisplayChoices m_taken;
    std::function<void(const DisplayChoices&)> m_take;
};

} // namespace zentaro
