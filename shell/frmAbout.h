#pragma once

#include "shell/SkinDialog.h"

namespace zentaro {

/// What the program is, its version, what it is made of, and the way to VLC's web page.
class frmAbout : public SkinDialog {
    Q_OBJECT

public:
    frmAbout(Skin& skin, QWidget* owner);

signals:
    /// The user wants to see a page of the web.
    void LinkChosen(const QString& address);

protected:
    void PaintBody(QPainter& painter) override;
};

} // namespace zentaro
