#include "assoc/ModAssoc.h"
#include "desktop/DesktopEntry.h"
#include "platform/Files.h"
#include "tests/platform/PrivateUser.h"

#include <fstream>
#include <map>
#include <set>
#include <sys/stat.h>
#include <thread>

namespace zentaro {
namespace {

namespace fs = std::filesystem;
using platform::OutputOfShell;
using platform::ReadTextFile;

/// A desktop of the test's own, with two other players, as the common tools see it.
class DesktopOfUser : public platform::PrivateUser {
protected:
    DesktopOfUser()
    {
        const std::pair<const char*, std::string> variables[] = { { "XDG_CONFIG_HOME", config },
            { "XDG_CONFIG_DIRS", folder / "etc" }, { "XDG_DATA_DIRS", folder / "system" },
            { "XDG_CURRENT_DESKTOP", "X-Generic" } };
        for (const auto& [name, value] : variables)
            setenv(name, value.c_str(), 1);
        fs::create_directories(folder / "system/applications");
        fs::create_directory(config);
        fs::create_symlink("/usr/share/mime", folder / "system/mime");
        // "other" opens everything by what it is made for, "second" only what it is told to.
        std::string all;
        for (const auto extension : kMediaExtensions)
            all += TypeOf(extension) + ";";
        Save(folder / "system/applications/other.desktop", PlayerEntry("Other") + "MimeType=" + all + "\n");
        Save(folder / "system/applications/second.desktop", PlayerEntry("Second"));
        OutputOfShell("update-desktop-database " + folder / "system/applications");
        // Its folder holds everything that a command line could stumble over.
        fs::create_directory(programFolder);
        for (const auto& path : { program, program + "-add" }) {
            Save(path, "#!/bin/sh\nprintf '%s\\n' \"${0##*/}\" \"$@\" >>\"" + folder / "started" + "\"\n");
            fs::permissions(path, fs::perms::owner_all);
        }
    }

    static std::string PlayerEntry(const std::string& name)
    {
        return "[Desktop Entry]\nType=Application\nName=" + name + "\nExec=true %f\nIcon=" + name + "\n";
    }
    static std::string TypeOf(std::string_view extension)
    {
        return desktop::MimeTypesOf("." + std::string(extension)).front();
    }
    static void Save(const std::string& path, const std::string& text) { std::ofstream(path) << text; }
    static std::string Load(const std::string& path) { return ReadTextFile(path, 1'000'000).value_or("missing"); }

    static std::string Default(std::string_view extension)
    {
        return OutputOfShell("xdg-mime query default " + TypeOf(extension));
    }

    /// As the common library sees it, which looks whether a program is there.
    static std::string DefaultByGio(std::string_view extension)
    {
        const auto line = OutputOfShell("gio mime " + TypeOf(extension) + " | head -n 1");
        return line.find(": ") == std::string::npos ? "" : line.substr(line.rfind(' ') + 1);
    }

    static AssociationFlags Flags(const std::set<std::string_view>& extensions)
    {
        AssociationFlags flags{};
        for (std::size_t i = 0; i < flags.size(); ++i)
            flags[i] = extensions.contains(kMediaExtensions[i]) ? 1 : 0;
        return flags;
    }
    static AssociationFlags All() { return Flags({ kMediaExtensions.begin(), kMediaExtensions.end() }); }

    /// A start of the player.
    void Start(const AssociationFlags& flags) const
    {
        const auto store = platform::StringStore::Open();
        const auto path = desktop::ExecQuoted(program);
        const auto shell = platform::AssociationShell::Open(path, programFolder + "/");
        ModAssoc(*store, *shell, path, programFolder + "/", '/').ApplyAssociations(flags);
    }

    /// All files of the user with their time, but for what the system's tools make of them in their own time.
    std::map<std::string, std::string> Files() const
    {
        std::map<std::string, std::string> files;
        for (const auto* top : { "XDG_DATA_HOME", "config" }) {
            for (const auto& file : fs::recursive_directory_iterator(folder / top)) {
                const auto name = file.path().string();
                if (file.is_regular_file()
                    && (name.find("/mime/") == std::string::npos || name.ends_with("zentaro.xml")))
                    files[name] = std::to_string(file.last_write_time().time_since_epoch().count());
            }
        }
        return files;
    }

    bool Eventually(const std::function<bool()>& holds) const
    {
        for (int i = 0; i < 100 && !holds(); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        return holds();
    }

    std::string config = folder / "config";
    std::string defaults = config + "/mimeapps.list";
    std::string applications = folder / "XDG_DATA_HOME/applications/";
    std::string programFolder = folder / "My $Player`s 100% \\ \"Folder\"";
    std::string program = programFolder + "/zentaro";
};

TEST_F(DesktopOfUser, all_types_are_taken_kept_and_given_back)
{
    const std::string mine = "# mine\n[Default Applications]\nvideo/x-matroska=second.desktop;other.desktop;\n";
    Save(defaults, mine);
    Start(All());
    for (const auto extension : kMediaExtensions)
        EXPECT_EQ(Default(extension), "zentaro.desktop") << extension;
    EXPECT_NE(OutputOfShell("gio mime video/mpeg").find("zentaro.desktop\n"), std::string::npos);
    EXPECT_NE(OutputOfShell("gio mime video/mpeg").find("zentaro-add.desktop"), std::string::npos);
    EXPECT_EQ(OutputOfShell(
                  "desktop-file-validate " + applications + "zentaro.desktop " + applications + "zentaro-add.desktop"),
        "");
    EXPECT_TRUE(Eventually([&] { return OutputOfShell("xdg-mime query filetype " + folder / "x.hdmov") != ""; }));

    const auto files = Files();
    Start(All());
    EXPECT_EQ(Files(), files);

    // Somebody else takes a type; the next start takes it again, and in the end that one has it.
    OutputOfShell("xdg-mime default second.desktop video/mp4");
    Start(All());
    EXPECT_EQ(Default("mp4"), "zentaro.desktop");
    Start({});
    for (const auto extension : kMediaExtensions) {
        const bool changed = extension == "mkv" || extension == "mp4" || extension == "m4v";
        EXPECT_EQ(Default(extension), changed ? "second.desktop" : "other.desktop") << extension;
    }
    EXPECT_TRUE(Load(defaults).starts_with(mine.substr(0, 31)));
    EXPECT_NE(Load(defaults).find("video/x-matroska=second.desktop;other.desktop;"), std::string::npos);
    EXPECT_EQ(Load(defaults).find("zentaro"), std::string::npos);
    for (const auto& [name, time] : Files())
        EXPECT_EQ(name.find("zentaro-add"), std::string::npos) << name;
}

TEST_F(DesktopOfUser, extensions_of_one_type_count_together)
{
    Start(Flags({ "mpe" }));
    const auto taken = Files();
    Start(Flags({ "mpe" }));
    EXPECT_EQ(Files(), taken);
    EXPECT_EQ(Default("mpg"), "zentaro.desktop");
    Start(Flags({ "mpeg" }));
    EXPECT_EQ(Default("mpg"), "zentaro.desktop");
    EXPECT_EQ(Default("mp4"), "other.desktop");
    // A choice made while it is released, or that was never ours to give back, stays.
    OutputOfShell("xdg-mime default second.desktop video/mpeg");
    OutputOfShell("xdg-mime default zentaro.desktop audio/mpeg");
    Start({});
    EXPECT_EQ(Default("mpg"), "second.desktop");
    EXPECT_NE(Load(defaults).find("audio/mpeg=zentaro.desktop"), std::string::npos);
}

TEST_F(DesktopOfUser, an_installed_package_keeps_its_entry_and_nothing_outlives_the_program)
{
    const auto common = folder / "system/applications/zentaro.desktop";
    Save(common, PlayerEntry("Zentaro") + "MimeType=" + TypeOf("mp4") + ";" + TypeOf("mp3") + ";\n");
    OutputOfShell("update-desktop-database " + folder / "system/applications");
    Start(Flags({ "mp4", "mkv" }));
    EXPECT_EQ(Default("mp4") + Default("mkv"), "zentaro.desktopzentaro.desktop");
    EXPECT_EQ(Default("mp3"), "other.desktop");
    EXPECT_FALSE(fs::exists(applications + "zentaro.desktop"));
    EXPECT_NE(OutputOfShell("gio mime audio/mpeg").find("zentaro.desktop"), std::string::npos);
    // The package goes. Another copy makes an entry of its own, and goes in turn.
    fs::remove(common);
    fs::rename(program, program + "-away");
    EXPECT_EQ(DefaultByGio("mkv"), "other.desktop");
    fs::rename(program + "-away", program);
    Start(Flags({ "mkv" }));
    EXPECT_EQ(DefaultByGio("mkv"), "zentaro.desktop");
    EXPECT_EQ(Default("mp4"), "other.desktop");
    EXPECT_NE(OutputOfShell("gio mime video/x-matroska").find("zentaro-add.desktop"), std::string::npos);
    fs::remove(program);
    EXPECT_EQ(DefaultByGio("mkv"), "other.desktop");
    EXPECT_EQ(OutputOfShell("gio mime video/x-matroska").find("\tzentaro"), std::string::npos);
}

TEST_F(DesktopOfUser, what_a_user_has_removed_is_no_owner)
{
    Save(defaults,
        "[Removed Associations]\nvideo/x-flv=other.desktop;\n[Added Associations]\nvideo/mp4=gone.desktop;"
        "second.desktop;\n");
    Save(folder / "system/applications/gone.desktop", PlayerEntry("Gone") + "TryExec=/nowhere/gone\n");
    const auto shell = platform::AssociationShell::Open("zentaro", "/");
    shell->Refresh();
    EXPECT_EQ(DefaultByGio("flv"), "");
    EXPECT_EQ(shell->CurrentOwner(".flv")->owner, "");
    EXPECT_EQ(shell->CurrentOwner(".mp4")->owner, DefaultByGio("mp4"));
    fs::create_directories(applications);
    Save(applications + "second.desktop", PlayerEntry("Second") + "Hidden=true\n");
    shell->Refresh();
    EXPECT_EQ(shell->CurrentOwner(".mp4")->owner, "other.desktop");
}

TEST_F(DesktopOfUser, files_to_be_added_come_to_one_program_in_their_order)
{
    Start(Flags({ "mkv" }));
    std::string names;
    std::string wanted = "zentaro-add\n";
    for (const auto* const name : { "My film, \"100%\" $x *Add.mkv", "b.mkv", "a.mkv" }) {
        Save(folder / name, "");
        names += " '" + (folder / name) + "'";
        wanted += (folder / name) + "\n";
    }
    OutputOfShell("gio launch " + applications + "zentaro-add.desktop" + names);
    EXPECT_TRUE(Eventually([&] { return Load(folder / "started").size() >= wanted.size(); }));
    EXPECT_EQ(Load(folder / "started"), wanted);
}

TEST_F(DesktopOfUser, icons_and_file_manager_menus_come_and_go_with_the_types)
{
    for (const auto* name : { "png/48/mpe.png", "png/48/mkv.png", "svg/mpe.svg" }) {
        fs::create_directories(fs::path(programFolder + "/icons/" + name).parent_path());
        Save(programFolder + "/icons/" + name, name);
    }
    const auto data = folder / "XDG_DATA_HOME/";
    const auto icon = data + "icons/hicolor/48x48/mimetypes/zentaro-";
    Start(Flags({ "mpe", "mpeg", "mkv", "avi" }));
    EXPECT_EQ(Load(icon + "mpe.png"), "png/48/mpe.png");
    EXPECT_EQ(Load(data + "icons/hicolor/scalable/mimetypes/zentaro-mpe.svg"), "svg/mpe.svg");
    EXPECT_FALSE(fs::exists(icon + "avi.png"));
    EXPECT_TRUE(
        Eventually([&] { return Load(data + "mime/icons").find("video/mpeg:zentaro-mpe") != std::string::npos; }));
    const auto menu = data + "kio/servicemenus/zentaro-add.desktop";
    EXPECT_NE(fs::status(menu).permissions() & fs::perms::owner_exec, fs::perms::none);
    EXPECT_NE(Load(menu).find("/zentaro-add\" %F\n"), std::string::npos);
    Start(Flags({ "mkv" }));
    EXPECT_FALSE(fs::exists(icon + "mpe.png"));
    EXPECT_TRUE(fs::exists(icon + "mkv.png"));
    Start({});
    for (const auto& [name, time] : Files())
        EXPECT_TRUE(name.ends_with(".ini") || name.ends_with(".cache") || name == defaults) << name;
}

TEST_F(DesktopOfUser, a_file_of_defaults_in_any_state_loses_nothing)
{
    const std::string damaged = "junk\n=\n[\n[Default Applications\r\n[Default Applications]\r\nvideo/x-flv = "
                                "second.desktop\r\nvideo/x-flv=other.desktop\n\xFF\xFE;;\n[Default Applications]";
    Save(folder / "elsewhere", damaged);
    fs::create_symlink("../elsewhere", defaults);
    Start(Flags({ "flv", "mkv" }));
    EXPECT_EQ(Default("flv") + Default("mkv"), "zentaro.desktopzentaro.desktop");
    EXPECT_TRUE(fs::is_symlink(defaults));
    Start({});
    EXPECT_EQ(Default("mkv"), "other.desktop");
    EXPECT_EQ(Load(folder / "elsewhere").find("zentaro"), std::string::npos);
    EXPECT_TRUE(Load(defaults).starts_with("junk\n=\n[\n[Default Applications\r\n[Default Applications]\r\n"));
    EXPECT_NE(Load(defaults).find("\xFF\xFE;;\n"), std::string::npos);

    fs::remove(defaults);
    fs::remove_all(config);
    Start(Flags({ "flv" }));
    EXPECT_EQ(Default("flv"), "zentaro.desktop");
}

TEST_F(DesktopOfUser, what_must_not_be_written_leaves_all_as_it_is)
{
    const auto before = Files();
    fs::create_directory(defaults);
    Start(All());
    EXPECT_EQ(Files(), before);
    fs::remove(defaults);
    fs::create_symlink("nowhere/else", defaults);
    Start(All());
    EXPECT_EQ(Files(), before);
    fs::remove(defaults);
    // No place for an entry: the file of defaults says again what it said.
    Save(defaults, "[Default Applications]\n");
    fs::create_directories(applications + "zentaro.desktop/x");
    Start(All());
    EXPECT_EQ(Load(defaults), "[Default Applications]\n");
    EXPECT_FALSE(fs::exists(applications + "zentaro-add.desktop"));
    EXPECT_EQ(Default("flv"), "other.desktop");
    fs::remove_all(applications);
    if (geteuid() == 0)
        GTEST_SKIP() << "every file is writable to the administrator";
    const auto readOnly = Files();
    fs::permissions(defaults, fs::perms::owner_read);
    Start(All());
    EXPECT_EQ(Files(), readOnly);
    // Nor is a file that cannot be read one that names nobody: whom the store has as owner stays.
    fs::permissions(defaults, fs::perms::owner_all);
    Start(All());
    const auto taken = Files();
    fs::permissions(defaults, fs::perms::owner_write);
    Start({});
    const auto store = platform::StringStore::Open();
    const auto shell = platform::AssociationShell::Open(program, programFolder + "/");
    ModAssoc(*store, *shell, program, programFolder + "/", '/').AdoptLiveOwners();
    fs::permissions(defaults, fs::perms::owner_all);
    EXPECT_EQ(Files(), taken);
}

TEST_F(DesktopOfUser, a_desktops_own_file_missing_tools_and_a_settings_page_are_no_obstacle)
{
    setenv("XDG_CURRENT_DESKTOP", "Unusual:GNOME", 1);
    Save(config + "/gnome-mimeapps.list", "[Default Applications]\nvideo/x-flv=second.desktop\n");
    const std::string path = getenv("PATH");
    setenv("PATH", folder.Path().c_str(), 1);
    Start(Flags({ "flv", "wmv" }));
    setenv("PATH", path.c_str(), 1);
    EXPECT_EQ(Default("flv"), "zentaro.desktop");
    EXPECT_NE(OutputOfShell("gio mime video/x-flv").find("zentaro-add.desktop"), std::string::npos);
    Start({});
    EXPECT_EQ(Default("flv"), "second.desktop");
    EXPECT_EQ(Load(config + "/gnome-mimeapps.list"), "[Default Applications]\nvideo/x-flv=second.desktop;\n");
    // A page that knows only one program per type writes over the owner that is to come back.
    Start(Flags({ "flv" }));
    Save(config + "/gnome-mimeapps.list", "");
    OutputOfShell("xdg-mime default zentaro.desktop video/x-flv");
    Start({});
    EXPECT_EQ(Default("flv"), "second.desktop");
}

} // namespace
} // namespace zentaro
