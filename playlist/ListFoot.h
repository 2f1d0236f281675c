#pragma once

#include <QString>
#include <QWidget>

namespace zentaro {

/// The line below the rows: what there is in the list, or what is looked for in it.
class ListFoot : public QWidget {
public:
    explicit ListFoot(QWidget* parent);

    /// Empty for no line. `isFinding`: it tells what was typed, and has the light of the focus.
    void SetText(const QString& text, bool isFinding);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_text;
    bool m_isFinding = false;
};

} // namespace zentaro
