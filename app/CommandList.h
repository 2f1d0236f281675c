#pragma once

#include "shell/SkinDialog.h"

#include <string>

class QLineEdit;

namespace zentaro {

class KeyedRows;
class Player;

/// All commands by their names: what is typed leaves those that have all its words, and Enter runs the chosen one.
class CommandList : public SkinDialog {
    Q_OBJECT

public:
    CommandList(Player& player, Skin& skin, QWidget* owner);

signals:
    /// By its id; the list is closed before.
    void Chosen(const std::string& id);

protected:
    void PaintBody(QPainter& painter) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Fill(Player& player);
    void RunCurrent();

    QLineEdit* m_words;
    KeyedRows* m_rows;
};

} // namespace zentaro
