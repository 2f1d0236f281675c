#pragma once

#include <QWidget>

namespace zentaro {

/// A page of the options that keeps its values itself.
class OptionsPage : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// On its tab, with a mark of its key.
    virtual QString Title() const = 0;
    /// Something differs from what was last taken over.
    virtual bool IsChanged() const = 0;
    /// Takes over what is shown.
    virtual void Commit() = 0;

signals:
    void Changed();
};

} // namespace zentaro
