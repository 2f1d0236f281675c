#pragma once

#include "app/PlayerFace.h"
#include "app/PlayerTimers.h"
#include "app/WindowFrame.h"
#include "shell/Skin.h"

#include <memory>

namespace zentaro {

class ContentPane;
class ControlPanel;
class FancyList;
class FocusAreas;
class FullScreenBar;
class ListHand;
class MenuStrip;
class Player;
class Previews;
class VideoFrame;
class WindowMenus;
class WindowNotes;

/// The main window: it shows the player's state and passes on what the user does; it decides nothing.
class frmMain : public WindowFrame, public WindowFace {
    Q_OBJECT

public:
    /// `programFolder`: with a trailing separator. The window takes the video frame over.
    frmMain(Player& player, Previews& previews, VideoFrame* video, const QString& programFolder);

    ~frmMain() override;

    PlayerTimers& Timers() { return m_timers; }
    Skin& Pictures() { return m_skin; }

    ScreenExtent Extent() const override;
    bool IsMaximized() const override { return CountsAsMaximized(); }
    double WindowLeft() const override { return NormalGeometry().left() * kTwipsPerPixel; }
    double WindowTop() const override { return NormalGeometry().top() * kTwipsPerPixel; }
    int WindowWidth() const override { return NormalGeometry().width(); }
    int WindowHeight() const override { return NormalGeometry().height(); }
    bool IsFullScreen() const override { return FillsScreen(); }
    void PlaceWindow() override { PlaceFirst(); }
    void ShowWindow() override;
    void CloseWindow() override { close(); }
    void SetWindowSize(int width, int height) override { TakeSize(width, height); }
    void FitFilm(int width, int height) override;
    void SetWindowPosition(int left, int top) override;
    void SetFullScreen(bool fullScreen) override { FillScreen(fullScreen); }
    void FlashCaption() override;
    void Do(WindowAction action) override;
    void FocusVideo() override;
    void PopupMenu(const std::string& menu) override;
    void ShowNote(const std::string& text, const std::string& file) override;
    void FindInList() override;
    void ShowOffer(const std::string& text, std::string_view command) override;
    void StateChanged() override;

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void closeEvent(QCloseEvent* event) override;

private:
    static constexpr double kTwipsPerPixel = 15;

    void MakeMenus();
    void PlaceParts();
    void FillsScreenNow(bool fills);
    void ShowMenuOfFocus();
    void ShowCaption();
    void ShowTip(bool isOnCaption, const QPoint& at);

    Player& m_player;
    PlayerTimers m_timers;
    QString m_programFolder;
    Skin m_skin;
    VideoFrame* m_video;
    FancyList* m_list; // FancyList1
    ContentPane* m_content;
    ControlPanel* m_controls;
    FullScreenBar* m_bar;
    std::unique_ptr<WindowMenus> m_menus;
    std::unique_ptr<ListHand> m_listHand;
    std::unique_ptr<WindowNotes> m_notes;
    FocusAreas* m_areas = nullptr;
    MenuStrip* m_strip = nullptr;
    QString m_caption;
    PlaylistDock m_dock = PlaylistDock::Hidden;
    bool m_isTopmost = false;
};

} // namespace zentaro
