#include "shell/frmSettings.h"

#include "base/Paths.h"
#include "base/Words.h"
#include "platform/Files.h"
#include "shell/HelpTopic.h"
#include "shell/MessageDialog.h"
#include "shell/QtText.h"
#include "shell/Style.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <numeric>
#include <utility>

namespace zentaro {

namespace {

constexpr int kSnapshotsPage = 2;
constexpr int kWidth = 590;
constexpr int kHeight = 500;
constexpr int kBand = 52;      // px, the strip of the buttons
constexpr int kCorner = 16;    // px
constexpr int kTabsTop = 8;    // px below the title bar
constexpr int kFewTypes = 120; // px, the list of types at the least

QVBoxLayout* PageLayout(QWidget* page)
{
    auto* const layout = new QVBoxLayout(page);
    layout->setContentsMargins(20, 16, 20, 12);
    layout->setSpacing(6);
    return layout;
}

} // namespace

frmSettings::frmSettings(const SettingsPages& pages, const std::vector<FileTypeRow>& rows, Skin& skin, QWidget* owner,
    std::vector<OptionsPage*> more)
    : SkinDialog(tr("Options"), skin, owner)
    , m_pages(pages)
    , m_committed(pages)
    , m_more(std::move(more))
    , m_tabs(new SkinTabs(skin, this))
{
    setObjectName("frmSettings");
    SetHelpTopic(*this, "options");
    const auto size = Fitting({ kWidth, kHeight });
    m_isNarrow = size.width() < kWidth;
    m_tabs->addTab(new SkinScroll(MakePlayerPage(), m_tabs), tr("&Player"));
    m_tabs->addTab(new SkinScroll(MakeAssociationsPage(rows), m_tabs), tr("Asso&ciations"));
    m_tabs->addTab(new SkinScroll(MakeSnapshotsPage(), m_tabs), tr("&Snapshots"));
    for (auto* const page : m_more) {
        m_tabs->addTab(new SkinScroll(page, m_tabs), page->Title());
        connect(page, &OptionsPage::Changed, this, &frmSettings::NoteChange);
    }
    auto* const all = new QVBoxLayout(this);
    all->setContentsMargins(1, kTabsTop, 1, 0);
    all->setSpacing(0);
    all->addWidget(m_tabs);
    all->addLayout(MakeButtons());
    setFixedSize(size);
    m_tabs->tabBar()->setFocus();
    NoteChange();
}

QWidget* frmSettings::MakePlayerPage()
{
    auto* const page = new QWidget;
    AddColumns(*PageLayout(page), MakeWindowOptions(), 4, MakeFileOptions(), 5);
    return page;
}

QBoxLayout* frmSettings::MakeWindowOptions()
{
    auto* const column = new QVBoxLayout;
    column->setSpacing(6);
    AddHeading(*column, tr("Window"));
    AddFlag(*column, tr("Always on &top"), &SettingsPages::alwaysOnTop);
    AddFlag(*column, tr("Icon in the tra&y"), &SettingsPages::showInTray);
    AddFlag(*column, tr("Remember the posit&ion"), &SettingsPages::rememberLastPos);
    AddFlag(*column, tr("Remember the si&ze"), &SettingsPages::rememberLastSize);
    column->addSpacing(14);
    AddHeading(*column, tr("The caption shows"));
    auto* const modes = new QButtonGroup(this);
    const QStringList names{ tr("the title &of the file"), tr("the &full path"), tr("the p&rogram's name alone") };
    for (int mode = 0; mode < names.size(); ++mode) {
        auto* const button = new QRadioButton(names[mode]);
        button->setChecked(mode == m_pages.titleBarMode);
        // Tab must stop at the chosen button alone. Qt sees to that only after the group has had the focus once.
        button->setFocusPolicy(button->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
        button->setAccessibleDescription(tr("What the caption shows"));
        modes->addButton(button, mode);
        column->addWidget(button);
    }
    connect(modes, &QButtonGroup::idClicked, this, [this](int mode) {
        m_pages.titleBarMode = mode;
        NoteChange();
    });
    column->addStretch();
    return column;
}

QBoxLayout* frmSettings::MakeFileOptions()
{
    auto* const column = new QVBoxLayout;
    column->setSpacing(6);
    AddHeading(*column, tr("Files"));
    AddFlag(*column, tr("&Keep History of recently Opened files."), &SettingsPages::keepHistory);
    AddFlag(*column, tr("&Launch Files in Fullscreen."), &SettingsPages::launchFullScreen);
    AddFlag(*column, tr("&Use new player for each media file played."), &SettingsPages::useNewPlayer);
    column->addSpacing(14);
    AddHeading(*column, tr("While a video plays"));
    AddFlag(*column, tr("Disable the screen sa&ver"), &SettingsPages::disableScreenSaver);
    column->addSpacing(14);
    AddHeading(*column, tr("Playlist"));
    auto* const dock = new QComboBox;
    dock->addItems({ tr("Left"), tr("Right"), tr("Top"), tr("Bottom"), tr("The whole window") });
    dock->setCurrentIndex(m_pages.playlistPosition);
    connect(dock, &QComboBox::currentIndexChanged, this, [this](int position) {
        m_pages.playlistPosition = position;
        NoteChange();
    });
    auto* const where = new QLabel(tr("&Docked at:"));
    where->setBuddy(dock);
    auto* const dockRow = new QHBoxLayout;
    dockRow->addWidget(where);
    dockRow->addWidget(dock, 1);
    column->addLayout(dockRow);
    column->addStretch();
    return column;
}

void frmSettings::AddColumns(QBoxLayout& layout, QBoxLayout* left, int leftShare, QBoxLayout* right, int rightShare)
{
    auto* const columns = new QBoxLayout(m_isNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    columns->setSpacing(18);
    columns->addLayout(left, leftShare);
    if (!m_isNarrow)
        columns->addWidget(new SkinLine(Qt::Vertical, Pictures()));
    columns->addLayout(right, rightShare);
    layout.addLayout(columns);
}

QWidget* frmSettings::MakeAssociationsPage(const std::vector<FileTypeRow>& rows)
{
    auto* const page = new QWidget;
    SetHelpTopic(*page, "types");
    m_types = new QListWidget;
    m_types->setAccessibleName(tr("File types"));
    m_types->setIconSize({ 20, 20 });
    m_types->setUniformItemSizes(true);
    for (const auto& row : rows) {
        auto* const item = new QListWidgetItem(row.icon, row.isDecidedElsewhere ? row.text + " *" : row.text, m_types);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    }
    std::vector<std::size_t> everything(rows.size());
    std::iota(everything.begin(), everything.end(), std::size_t{ 0 });
    auto* const side = new QVBoxLayout;
    side->setSpacing(6);
    AddHeading(*side, tr("Choose together"));
    AddFamily(*side, tr("All file &types"), std::move(everything));
    side->addSpacing(6);
    for (const auto& family : FileTypeFamilies())
        AddFamily(*side, ToQString(Words(family.name)), family.members);
    side->addStretch();
    ShowAssociations();
    if (m_types->count() > 0)
        m_types->setCurrentRow(0);
    connect(m_types, &QListWidget::itemChanged, this, [this](const QListWidgetItem* item) {
        m_pages.associations[static_cast<std::size_t>(m_types->row(item))] = item->checkState() == Qt::Checked;
        ShowAssociations();
        NoteChange();
    });

    m_types->setMinimumHeight(kFewTypes);
    auto* const types = new QVBoxLayout;
    types->addWidget(m_types);
    auto* const layout = PageLayout(page);
    AddColumns(*layout, types, 5, side, 3);
    auto* const note = SecondText(tr("A type that is no longer chosen goes back to the program that had it before."));
    note->setWordWrap(m_isNarrow);
    layout->addWidget(note);
    if (std::ranges::any_of(rows, &FileTypeRow::isDecidedElsewhere))
        AddDecidedElsewhere(*layout);
    return page;
}

void frmSettings::AddDecidedElsewhere(QBoxLayout& layout)
{
    auto* const note = SecondText(tr("* In the system's own settings it is another program, and they decide."));
    note->setWordWrap(true);
    auto* const open = new SkinPushButton(tr("&Default apps..."), Pictures(), nullptr);
    open->setAutoDefault(false);
    connect(open, &QPushButton::clicked, this, &frmSettings::DefaultProgramsAsked);
    auto* const row = new QHBoxLayout;
    row->addWidget(note, 1);
    row->addWidget(open);
    layout.addLayout(row);
}

QWidget* frmSettings::MakeSnapshotsPage()
{
    auto* const page = new QWidget;
    m_folder = new QLineEdit(ToQString(m_pages.snapshotPath));
    m_prefix = new QLineEdit(ToQString(m_pages.snapshotPrefix));
    m_prefix->setMaximumWidth(160);
    auto* const browse = new SkinPushButton(tr("&Browse..."), Pictures(), nullptr);
    browse->setAutoDefault(false);
    connect(browse, &QPushButton::clicked, this, &frmSettings::Browse);
    auto* const folderRow = new QHBoxLayout;
    folderRow->setSpacing(8);
    folderRow->addWidget(m_folder);
    folderRow->addWidget(browse);

    auto* const form = new QFormLayout;
    form->setHorizontalSpacing(16);
    form->setVerticalSpacing(12);
    form->addRow(tr("&Folder:"), folderRow);
    qobject_cast<QLabel*>(form->labelForField(folderRow))->setBuddy(m_folder);
    form->addRow(tr("P&refix:"), m_prefix);
    form->addRow(tr("Format:"), new QLabel("PNG"));
    m_example = SecondText({});
    m_example->setWordWrap(true);
    form->addRow(tr("Example:"), m_example);

    auto* const layout = PageLayout(page);
    AddHeading(*layout, tr("Where snapshots go"));
    layout->addLayout(form);
    layout->addSpacing(14);
    AddHeading(*layout, tr("After a snapshot"));
    AddFlag(*layout, tr("Show a small previe&w in the window"), &SettingsPages::snapshotPreview);
    layout->addStretch();
    connect(m_folder, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_pages.snapshotPath = ToText(text.trimmed());
        ShowSnapshotExample();
        NoteChange();
    });
    connect(m_prefix, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_pages.snapshotPrefix = ToText(text);
        ShowSnapshotExample();
        NoteChange();
    });
    ShowSnapshotExample();
    return page;
}

QBoxLayout* frmSettings::MakeButtons()
{
    auto* const ok = new SkinPushButton(tr("OK"), Pictures(), this);
    auto* const cancel = new SkinPushButton(tr("Cancel"), Pictures(), this);
    m_apply = new SkinPushButton(tr("&Apply"), Pictures(), this);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, [this] {
        if (CommitPages())
            accept();
    });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_apply, &QPushButton::clicked, this, &frmSettings::CommitPages);
    auto* const row = new QHBoxLayout;
    row->setContentsMargins(20, 0, 20, 0);
    row->addStretch();
    for (auto* const button : { static_cast<QPushButton*>(ok), static_cast<QPushButton*>(cancel), m_apply })
        row->addWidget(button);
    row->setSpacing(8);
    row->addStrut(kBand);
    return row;
}

void frmSettings::AddHeading(QBoxLayout& layout, const QString& text)
{
    layout.addWidget(SecondText(text));
    layout.addWidget(new SkinLine(Qt::Horizontal, Pictures()));
}

void frmSettings::AddFlag(QBoxLayout& layout, const QString& text, bool SettingsPages::*field)
{
    auto* const box = new QCheckBox(text);
    box->setChecked(m_pages.*field);
    connect(box, &QCheckBox::toggled, this, [this, field](bool on) {
        m_pages.*field = on;
        NoteChange();
    });
    layout.addWidget(box);
}

void frmSettings::AddFamily(QBoxLayout& layout, const QString& text, std::vector<std::size_t> members)
{
    auto* const box = new QCheckBox(text);
    connect(box, &QCheckBox::clicked, this, [this, members] {
        ToggleGroup(m_pages.associations, members);
        ShowAssociations();
        NoteChange();
    });
    layout.addWidget(box);
    m_families.push_back({ box, std::move(members) });
}

void frmSettings::ShowAssociations()
{
    const QSignalBlocker quiet(m_types);
    for (int row = 0; row < m_types->count(); ++row) {
        const bool isChosen = m_pages.associations[static_cast<std::size_t>(row)];
        m_types->item(row)->setCheckState(isChosen ? Qt::Checked : Qt::Unchecked);
    }
    m_types->viewport()->update();
    for (const auto& family : m_families) {
        const auto chosen = ChosenOf(m_pages.associations, family.members);
        family.box->setCheckState(chosen == Chosen::All ? Qt::Checked
                : chosen == Chosen::Some                ? Qt::PartiallyChecked
                                                        : Qt::Unchecked);
    }
}

void frmSettings::ShowSnapshotExample()
{
    const auto folder = WithTrailingSeparator(m_pages.snapshotPath, platform::PathSeparator());
    m_example->setText(
        ToQString(folder + "Clip.mkv Images" + platform::PathSeparator() + m_pages.snapshotPrefix + "00001.png"));
}

void frmSettings::Browse()
{
    const auto chosen = QFileDialog::getExistingDirectory(this, tr("Folder for snapshots"), m_folder->text());
    if (!chosen.isEmpty())
        m_folder->setText(QDir::toNativeSeparators(chosen));
}

void frmSettings::NoteChange()
{
    if (m_apply != nullptr)
        m_apply->setEnabled(m_pages != m_committed || std::ranges::any_of(m_more, &OptionsPage::IsChanged));
}

bool frmSettings::CommitPages()
{
    if (const auto fault = FaultIn(m_committed, m_pages)) {
        auto* const field = fault->field == PageFault::Field::SnapshotPath ? m_folder : m_prefix;
        m_tabs->setCurrentIndex(kSnapshotsPage);
        MessageDialog({ fault->text, NoticeIcon::Information, ToText(windowTitle()) }, Pictures(), this).exec();
        field->setFocus();
        field->selectAll();
        return false;
    }
    emit Commit(m_committed, m_pages);
    m_committed = m_pages;
    for (auto* const page : m_more) {
        if (page->IsChanged())
            page->Commit();
    }
    NoteChange();
    return true;
}

void frmSettings::PaintBody(QPainter& painter)
{
    const auto tabs = m_tabs->tabBar()->geometry().translated(m_tabs->pos());
    painter.fillRect(QRect(0, kTitleHeight, width(), tabs.bottom() + 1 - kTitleHeight), style::kBase);
    const int top = height() - kBand;
    Pictures().Draw(painter, SkinImage::BGBCorner, { kCorner, top, width() - 2 * kCorner, kBand });
    Pictures().Draw(painter, SkinImage::BGBLCorner, { 0, top, kCorner, kBand });
    Pictures().Draw(painter, SkinImage::BGBRCorner, { width() - kCorner, top, kCorner, kBand });
    Pictures().Draw(painter, SkinImage::HLine, { 0, top, width(), 2 });
}

} // namespace zentaro
