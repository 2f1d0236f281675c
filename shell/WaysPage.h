#pragma once

#include "shell/OptionsPage.h"

#include <functional>

class QAbstractButton;

namespace zentaro {

/// How the player behaves where people differ.
struct WayChoices {
    bool familiar = false; ///< as other players
    bool remembers = true;
    bool remembersRemovable = false;
    bool lowRows = false;
    bool operator==(const WayChoices&) const = default;
};

class WaysPage : public OptionsPage {
    Q_OBJECT

public:
    WaysPage(const WayChoices& choices, std::function<void(const WayChoices&)> take);

    QString Title() const override { return tr("&Ways"); }
    bool IsChanged() const override { return m_choices != m_taken; }
    void Commit() override;

private:
    void AddSwitch(QAbstractButton* button, bool WayChoices::*field);

    WayChoices m_choices;
    WayChoices m_taken;
    std::function<void(const WayChoices&)> m_take;
};

} // namespace zentaro
