#pragma once

#include "shell/OptionsPage.h"
#include "shell/SettingsPages.h"
#include "shell/SkinDialog.h"

#include <QIcon>

#include <vector>

class QBoxLayout;
class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QTabWidget;

namespace zentaro {

/// A file type as the options list it.
struct FileTypeRow {
    QString text;
    QIcon icon;                      ///< of the program that opens the type now
    bool isDecidedElsewhere = false; ///< whatever is chosen here
};

/// The options: pages for the player, the file types and the snapshots. It holds `SettingsPages` and gives them back;
/// what they mean is decided elsewhere.
class frmSettings : public SkinDialog {
    Q_OBJECT

public:
    /// One row for each file type, in the order of the settings. `more` follows the pages of the settings and is taken
    /// over.
    frmSettings(const SettingsPages& pages, const std::vector<FileTypeRow>& rows, Skin& skin, QWidget* owner,
        std::vector<OptionsPage*> more = {});

signals:
    /// OK or Apply, with values that can be stored. `shown`: what the pages held at the opening or the commit before.
    void Commit(const SettingsPages& shown, const SettingsPages& chosen);
    /// The page of the system's settings is wanted that decides about types of files.
    void DefaultProgramsAsked();

protected:
    void PaintBody(QPainter& painter) override;

private:
    struct FamilyBox {
        QCheckBox* box;
        std::vector<std::size_t> members;
    };

    QWidget* MakePlayerPage();
    QBoxLayout* MakeWindowOptions();
    QBoxLayout* MakeFileOptions();
    QWidget* MakeAssociationsPage(const std::vector<FileTypeRow>& rows);
    void AddDecidedElsewhere(QBoxLayout& layout);
    QWidget* MakeSnapshotsPage();
    QBoxLayout* MakeButtons();
    void AddColumns(QBoxLayout& layout, QBoxLayout* left, int leftShare, QBoxLayout* right, int rightShare);
    void AddHeading(QBoxLayout& layout, const QString& text);
    void AddFlag(QBoxLayout& layout, const QString& text, bool SettingsPages::*field);
    void AddFamily(QBoxLayout& layout, const QString& text, std::vector<std::size_t> members);
    void ShowAssociations();
    void ShowSnapshotExample();
    void Browse();
    void NoteChange();
    /// False when a value could not be stored; the user has been told then.
    bool CommitPages();

    SettingsPages m_pages;
    SettingsPages m_committed;
    bool m_isNarrow = false; // the columns of the pages stand below each other
    std::vector<OptionsPage*> m_more;
    QTabWidget* m_tabs = nullptr;
    QListWidget* m_types = nullptr;
    std::vector<FamilyBox> m_families;
    QLineEdit* m_folder = nullptr;
    QLineEdit* m_prefix = nullptr;
    QLabel* m_example = nullptr;
    QPushButton* m_apply = nullptr;
};

} // namespace zentaro
