#pragma once

#include "shell/OptionsPage.h"

#include <functional>
#include <string>

namespace zentaro {

/// How the window is shown to those who need it otherwise. All of it counts from the next start on.
struct DisplayChoices {
    std::string language; ///< "de"; empty: the system's
    int scale = 100;      ///< percent
    bool highContrast = false;
    bool lessMotion = false;
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
    void AddFlag(const QString& text, bool DisplayChoices::*field);

    DisplayChoices m_choices;
    DisplayChoices m_taken;
    std::function<void(const DisplayChoices&)> m_take;
};

} // namespace zentaro
