#pragma once

#include <QListWidget>
#include <QString>

#include <string>
#include <vector>

namespace zentaro {

/// A list of names with their keys at the right edge.
class KeyedRows : public QListWidget {
    Q_OBJECT

public:
    explicit KeyedRows(QWidget* parent);
    ~KeyedRows() override;

    /// `keys`: as Qt's portable text.
    void Add(const std::string& id, const QString& name, const std::vector<std::string>& keys, bool isUsable = true);
    void ShowKeys(int row, const std::vector<std::string>& keys);
    std::string IdOf(int row) const;
    /// Leaves the rows whose names and keys have all these words, and chooses the first of them.
    void Search(const QString& words);

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    std::vector<QListWidgetItem*> m_all; // those that are not shown are owned
    QString m_told;
};

} // namespace zentaro
