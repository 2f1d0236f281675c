#pragma once

#include "shell/OptionsPage.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

class QLabel;
class QLineEdit;

namespace zentaro {

class KeyedRows;
class Skin;

/// What the page of the keys needs to know.
struct KeyChoices {
    using Table = std::map<std::string, std::vector<std::string>, std::less<>>;
    struct Row {
        std::string id;
        std::string name;
    };
    std::vector<Row> rows;
    Table keys;
    Table defaults;
    /// The id of what else this key would run; empty when it is free.
    std::function<std::string(const Table& keys, const std::string& key, const std::string& id)> userOf;
    std::function<void(const Table& keys)> take;
};

/// The keys of the commands, to be changed.
class KeysPage : public OptionsPage {
    Q_OBJECT

public:
    KeysPage(KeyChoices choices, Skin& skin);

    QString Title() const override { return tr("S&hortcuts"); }
    bool IsChanged() const override { return m_choices.keys != m_taken; }
    void Commit() override;

private:
    void ShowUser();
    void AddKey();
    void SetKeys(KeyChoices::Table keys);
    QString NameOf(const std::string& id) const;

    KeyChoices m_choices;
    KeyChoices::Table m_taken;
    KeyedRows* m_rows;
    QLineEdit* m_newKey;
    QLabel* m_user;
};

} // namespace zentaro
