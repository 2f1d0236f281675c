#pragma once

#include "playlist/Notice.h"
#include "shell/SkinDialog.h"

namespace zentaro {

/// A notice in the main window's look, with OK alone. Esc and Enter close it; what is long can be scrolled, and
/// everything can be copied.
class MessageDialog : public SkinDialog {
public:
    /// The skin outlives the dialog.
    MessageDialog(const Notice& notice, Skin& skin, QWidget* owner);

protected:
    void showEvent(QShowEvent* event) override;
    void PaintBody(QPainter& painter) override;

private:
    QPixmap m_sign;
};

} // namespace zentaro
