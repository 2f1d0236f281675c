#pragma once

#include "app/Player.h"
#include "tests/world/FakeEngine.h"
#include "tests/world/FakeInspections.h"

#include <algorithm>
#include <deque>
#include <map>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

// A world for a player, made of memory: nothing in it happens by itself.
namespace zentaro {

class FakeWindow : public WindowFace {
public:
    ScreenExtent Extent() const override { return { 1280 * 15.0, 800 * 15.0 }; }
    bool IsMaximized() const override { return maximized; }
    double WindowLeft() const override { return left; }
    double WindowTop() const override { return 45; }
    int WindowWidth() const override { return 400; }
    int WindowHeight() const override { return 500; }
    bool IsFullScreen() const override { return isFullScreen; }
    void ShowWindow() override { log << "show "; }
    void CloseWindow() override { ++closes; }
    void SetWindowSize(int width, int height) override { log << "size " << width << "x" << height << " "; }
    void FitFilm(int width, int height) override { log << "fit " << width << "x" << height << " "; }
    void SetWindowPosition(int x, int y) override { log << "at " << x << "," << y << " "; }
    void SetFullScreen(bool fullScreen) override { isFullScreen = fullScreen; }
    void FlashCaption() override { log << "flash "; }
    void Do(WindowAction action) override { log << "action " << static_cast<int>(action) << " "; }
    void FocusVideo() override { log << "video "; }
    void PopupMenu(const std::string& menu) override { log << "menu " << menu << " "; }
    void ShowNote(const std::string& text, const std::string& file) override
    {
        notes.push_back(text + (file.empty() ? "" : "|" + file));
    }
    void FindInList() override { log << "find "; }
    void ShowOffer(const std::string& text, std::string_view command) override
    {
        offers.push_back(text + ": " + std::string(command));
    }
    void StateChanged() override { ++changes; }

    std::ostringstream log;
    std::vector<std::string> notes;
    std::vector<std::string> offers; ///< with the id of what they offer
    double left = 30;
    bool maximized = false;
    bool isFullScreen = false;
    int closes = 0;
    int changes = 0;
};

/// Boxes and dialogs stay open until the test closes them.
class FakeDialogs : public DialogFace {
public:
    void ShowNotice(const Notice& notice, std::function<void()> closed) override
    {
        boxes.push_back(notice.title + ": " + notice.text);
        m_open.push_back(std::move(closed));
    }
    void AskForFiles(
        const std::string&, const std::string&, std::function<void(std::vector<std::string>)> chosen) override
    {
        ++asked;
        m_chosen = std::move(chosen);
    }
    void AskForListName(std::function<void(std::string)> chosen) override { chooseListName = std::move(chosen); }
    void AskForSubtitles(std::function<void(std::string)> chosen) override { chooseSubtitles = std::move(chosen); }
    void AskForTime(const std::string&, std::function<void(std::string)> chosen) override
    {
        chooseTime = std::move(chosen);
    }
    void ShowFolderOf(const std::string& path) override { log << "folder of " << path << " "; }
    void ShowOptions() override { log << "options "; }
    void ShowAbout() override { log << "about "; }
    void ShowCommandList() override { log << "commands "; }
    void ShowHelp() override { log << "help "; }

    std::size_t OpenBoxes() const { return m_open.size(); }
    /// The oldest one.
    void CloseBox()
    {
        const auto closed = std::move(m_open.front());
        m_open.pop_front();
        closed();
    }
    /// The open dialog is closed with these files; none is cancel.
    void Choose(const std::vector<std::string>& files) { std::exchange(m_chosen, nullptr)(files); }

    std::function<void(std::string)> chooseListName;
    std::function<void(std::string)> chooseTime;
    std::function<void(std::string)> chooseSubtitles;
    std::vector<std::string> boxes;
    std::ostringstream log;
    int asked = 0;

private:
    std::deque<std::function<void()>> m_open;
    std::function<void(std::vector<std::string>)> m_chosen;
};

class MemoryStore : public platform::StringStore {
public:
    std::string Read(Root, const std::string& key, const std::string& name, const std::string& fallback) override
    {
        const auto at = values.find(key + ":" + name);
        return at == values.end() ? fallback : at->second;
    }
    Result<void> Write(Root, const std::string& key, const std::string& name, const std::string& text) override
    {
        values[key + ":" + name] = text;
        return {};
    }
    Result<void> Delete(Root, const std::string& key, const std::string& name) override
    {
        values.erase(key + ":" + name);
        return {};
    }

    std::map<std::string, std::string> values; ///< by key, colon, name
};

class CountingPower : public platform::Power {
public:
    void EnableShutdownPrivilege() override { }
    Result<void> Restart() override
    {
        ++restarts;
        return {};
    }
    Result<void> PowerOff() override
    {
        ++powerOffs;
        return {};
    }

    int restarts = 0;
    int powerOffs = 0;
};

class FakeAssociations : public platform::AssociationShell {
public:
    bool Refresh() override { return true; }
    std::optional<platform::LiveOwner> CurrentOwner(const std::string&) override
    {
        return platform::LiveOwner{ false, "other.desktop", "" };
    }
    void AssociationsChanged() override { }
    bool BringInLine(const std::vector<platform::AssociatedType>& types) override
    {
        ours =
            static_cast<int>(std::count_if(types.begin(), types.end(), [](const auto& type) { return type.isOurs; }));
        return true;
    }
    int ours = -1;
};

class FakeEnds : public platform::HandOverEnds {
public:
    using Handler = std::function<void(std::string, platform::HandOverDone)>;
    explicit FakeEnds(Handler& handler)
        : m_handler(handler)
    {
    }
    ~FakeEnds() override { m_handler = nullptr; }
    std::string CommandHandle() const override { return "4711"; }
    std::string ProbeHandle() const override { return "4712"; }
    std::string AddHandle() const override { return "4713"; }
    void Deliver(Handler onCommand) override { m_handler = std::move(onCommand); }
    void DeliverAdded(Handler) override { }

private:
    Handler& m_handler;
};

/// All of it, with players that keep their settings in `folder` (with a trailing separator).
class World {
public:
    explicit World(std::string settingsFolder, EngineFactory* realEngines = nullptr)
        : folder(std::move(settingsFolder))
        , m_engines(realEngines != nullptr ? *realEngines : engines)
    {
        if (startsFamiliar)
            own.Set("choice.familiarWays", "1");
    }

    /// A player that was not there before; nothing of the one before but what it has stored.
    Player& Make()
    {
        player.reset();
        timers.clear();
        return *(player = std::make_unique<Player>(Needs()));
    }
    bool Load(const std::string& commandLine = {}) { return Make().Load(commandLine, { &window, &dialogs }); }

    /// Ends one inspection, the oldest or the one of this ticket.
    void Answer(int ticket = 0)
    {
        const auto at = ticket != 0 ? inspections.atWork.find(ticket) : inspections.atWork.begin();
        const auto [answered, path] = *at;
        inspections.atWork.erase(at);
        player->Files().InspectionCompleted(answered, FakeInspections::ResultFor(path));
    }
    /// Everything that goes on beside the window comes to its end; boxes stay open.
    void Settle()
    {
        while (!background.empty() || !inspections.atWork.empty()) {
            if (background.empty()) {
                Answer();
                continue;
            }
            const auto work = std::move(background.front());
            background.pop_front();
            work()();
        }
    }
    void Elapse(std::chrono::milliseconds time)
    {
        for (const auto& [due, work] : std::exchange(timers, {})) {
            if (due <= time)
                work();
            else
                timers.push_back({ due - time, work });
        }
    }

    static inline bool startsFamiliar = false; ///< with the ways of other players
    std::string folder;
    OwnSettings own{ folder + "Own.cfg" };
    FakeWindow window;
    FakeDialogs dialogs;
    FakeEngines engines;
    FakeInspections inspections;
    MemoryStore store;
    CountingPower power;
    FakeAssociations associations;
    FakeEnds::Handler receive;      ///< what a later start's text meets; null while no player listens
    std::vector<std::string> files; ///< of the command line
    std::vector<std::string> sent;
    std::deque<platform::HandOverOutcome> outcomes; ///< of the next texts that are sent; then Opened
    std::string alive;                              ///< the probe handle of another player
    std::function<void()> onSend = [] {};
    std::vector<std::string> told;
    std::deque<std::function<std::function<void()>()>> background;
    std::vector<std::pair<std::chrono::milliseconds, std::function<void()>>> timers;
    RandomSource random = [draws = std::mt19937(1)]() mutable { return std::uniform_real_distribution()(draws); };
    bool isSleepHeldOff = false;
    std::function<void()> askForDrives = [] {};
    int driveQuestions = 0;
    bool ended = false;
    std::unique_ptr<Player> player;

private:
    HandOverService HandOver()
    {
        return {
            [this] { return Result<std::unique_ptr<platform::HandOverEnds>>(std::make_unique<FakeEnds>(receive)); },
            [this](const std::string& handle) { return handle == alive; },
            [this](const std::string& handle, const std::string& text) {
                sent.push_back(handle + ":" + text);
                onSend();
                if (outcomes.empty())
                    return platform::HandOverOutcome::Opened;
                const auto outcome = outcomes.front();
                outcomes.pop_front();
                return outcome;
            },
            [] { return std::unique_ptr<platform::HandOverLock>(); },
            [this](const std::string& text) { told.push_back(text); },
        };
    }
    PlayerWorld Needs()
    {
        const auto after = [this](std::chrono::milliseconds time, std::function<void()> work) {
            timers.push_back({ time, std::move(work) });
        };
        return { m_engines, inspections, store, store, store, power, HandOver(), [this] { return random(); },
            [](const std::string& path) { return path != "/clips/missing.avi"; }, [this] { ended = true; }, own, files,
            folder, '/', { [this] { ++driveQuestions, askForDrives(); }, [] { return Picture(); }, false, after },
            { &associations, "zentaro", "/program/", {} }, after,
            [this](auto work) { background.push_back(std::move(work)); }, [](auto work) { work()(); },
            [this](bool held) { isSleepHeldOff = held; },
            [](const std::string& path) { return path.starts_with("/media/"); } };
    }

    EngineFactory& m_engines;
};

} // namespace zentaro
