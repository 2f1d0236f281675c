#include "assoc/ModAssoc.h"
#include "assoc/ModIcons.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>

namespace zentaro {
namespace {

class MemoryStore : public platform::StringStore {
public:
    std::string Read(Root root, const std::string& key, const std::string& name, const std::string& fallback) override
    {
        const auto at = values.find(Place(root, key, name));
        return at == values.end() ? fallback : at->second;
    }
    Result<void> Write(Root root, const std::string& key, const std::string& name, const std::string& text) override
    {
        if (refuses && refuses(Place(root, key, name)))
            return Error{ 5, "refused" };
        ++writes;
        values[Place(root, key, name)] = text;
        return {};
    }
    Result<void> Delete(Root root, const std::string& key, const std::string& name) override
    {
        values.erase(Place(root, key, name));
        return {};
    }

    static std::string Place(Root root, const std::string& key, const std::string& name)
    {
        return (root == Root::ClassesRoot ? "" : "user:") + key + ":" + name;
    }

    std::map<std::string, std::string> values;
    std::function<bool(const std::string& place)> refuses;
    int writes = 0;
};

class FakeShell : public platform::AssociationShell {
public:
    bool Refresh() override { return mayChange; }
    std::optional<platform::LiveOwner> CurrentOwner(const std::string& extension) override
    {
        const auto at = live.find(extension);
        return at == live.end() ? std::nullopt : std::optional(at->second);
    }
    void AssociationsChanged() override { ++notices; }
    bool BringInLine(const std::vector<platform::AssociatedType>&) override { return true; }

    bool mayChange = true;
    std::map<std::string, platform::LiveOwner> live;
    int notices = 0;
};

class Associations : public testing::Test {
protected:
    static constexpr std::int16_t kMkv = 3;
    static constexpr auto kChosen = "user:Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts\\.mkv:";

    std::string& Class(const std::string& place) { return store.values[place]; }
    std::string& Chosen(const std::string& name) { return store.values[kChosen + name]; }
    bool Has(const std::string& place) const { return store.values.contains(place); }

    MemoryStore store;
    FakeShell shell;
    ModAssoc types{ store, shell, "C:\\PROGRA~1\\Zentaro.exe", "C:\\Program Files\\", '\\' };
};

TEST_F(Associations, a_taken_type_has_two_verbs_and_an_icon_and_comes_back_with_its_traces)
{
    for (const auto outside : { std::int16_t{ -1 }, std::int16_t{ 24 } }) {
        types.AssociateType(outside);
        types.UnassociateType(outside);
    }
    EXPECT_TRUE(store.values.empty());
    Class(".mkv:") = "OtherPlayer.mkv";
    Chosen("ProgID") = "Chosen.mkv";
    types.AssociateType(kMkv);
    types.AssociateType(kMkv);
    const std::map<std::string, std::string> taken = { { ".mkv:", "Zentaro.mkv" }, { ".mkv:OldAss", "OtherPlayer.mkv" },
        { "Zentaro.mkv:", "Zentaro mkv File" }, { "Zentaro.mkv\\shell:", "" }, { "Zentaro.mkv\\shell\\open:", "" },
        { "Zentaro.mkv\\shell\\open\\command:", "C:\\PROGRA~1\\Zentaro.exe %1" },
        { "Zentaro.mkv\\shell\\Add To Playlist:", "" },
        { "Zentaro.mkv\\shell\\Add To Playlist\\command:", "C:\\PROGRA~1\\Zentaro.exe %1 *Add" },
        { "Zentaro.mkv\\DefaultIcon:", "C:\\Program Files\\icons\\mkv.ico" },
        { kChosen + std::string("ProgID"), "Zentaro.mkv" }, { kChosen + std::string("OldProgID"), "Chosen.mkv" } };
    EXPECT_EQ(store.values, taken);
    types.UnassociateType(kMkv);
    types.UnassociateType(kMkv);
    auto released = taken;
    released.erase(".mkv:OldAss");
    released[".mkv:"] = "OtherPlayer.mkv";
    released[".mkv:OldProgID"] = "Dummy";
    released[kChosen + std::string("ProgID")] = "Chosen.mkv";
    EXPECT_EQ(store.values, released);
    EXPECT_EQ(shell.notices, 2);
    // Without an owner before, it has none again.
    Class(".mkv:") = "";
    types.AssociateType(kMkv);
    types.UnassociateType(kMkv);
    EXPECT_TRUE(Has(".mkv:") && Class(".mkv:").empty());
    types.RegisterVerb("Zentaro.x", "x", "open", "", "");
    EXPECT_EQ(Class("Zentaro.x\\DefaultIcon:"), "C:\\PROGRA~1\\Zentaro.exe");
}

TEST_F(Associations, a_choice_in_the_systems_settings_rules_unless_it_is_ours)
{
    auto& chosen = store.values["user:Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts\\.mkv\\"
                                "UserChoice:ProgId"];
    EXPECT_FALSE(types.IsDecidedElsewhere(kMkv));
    for (const auto& [owner, isOthers] : { std::pair("OtherPlayer.mkv", true), std::pair("Zentaro.mkv", false),
             std::pair("Applications\\zentaro.exe", false) }) {
        chosen = owner;
        EXPECT_EQ(types.IsDecidedElsewhere(kMkv), isOthers) << owner;
    }
}

TEST_F(Associations, applying_again_writes_nothing_and_keeps_foreign_types)
{
    AssociationFlags flags{};
    flags[kMkv] = -1;
    flags[23] = 1;
    Class(".avi:") = "Other.avi";
    types.ApplyAssociations(flags);
    EXPECT_EQ(Class(".mkv:") + Class(".asf:") + Class(".avi:"), "Zentaro.mkvZentaro.asfOther.avi");
    store.writes = 0;
    types.ApplyAssociations(flags);
    EXPECT_EQ(store.writes, 0);
    // Taken away meanwhile, it is taken again, and that owner is the one to go back to.
    Class(".mkv:") = "Third.mkv";
    types.ApplyAssociations(flags);
    types.ApplyAssociations({});
    EXPECT_EQ(Class(".mkv:"), "Third.mkv");
}

TEST_F(Associations, a_store_or_desktop_that_refuses_leaves_nothing_half_done)
{
    AssociationFlags flags{};
    flags[kMkv] = 1;
    Class(".mkv:") = "Other.mkv";
    const auto before = store.values;
    store.refuses = [](const std::string&) { return true; };
    types.ApplyAssociations(flags);
    store.refuses = nullptr;
    shell.mayChange = false;
    types.ApplyAssociations(flags);
    EXPECT_EQ(store.values, before);
    EXPECT_EQ(shell.notices, 0);

    shell.mayChange = true;
    for (const auto* refused : { ".mkv:", ".mkv:OldAss", "Zentaro.mkv:", "Zentaro.mkv\\shell\\open\\command:",
             "Zentaro.mkv\\shell\\Add To Playlist\\command:", "Zentaro.mkv\\DefaultIcon:" }) {
        store.values = before;
        store.refuses = [&](const std::string& place) { return place == refused; };
        types.ApplyAssociations(flags);
        EXPECT_EQ(Class(".mkv:"), "Other.mkv") << refused;
        EXPECT_FALSE(Has(".mkv:OldAss") || Has(kChosen + std::string("ProgID"))) << refused;
    }
    store.refuses = nullptr;
    types.ApplyAssociations(flags);
    store.refuses = [](const std::string& place) { return place == ".mkv:"; };
    types.ApplyAssociations({});
    EXPECT_EQ(Class(".mkv:") + Class(".mkv:OldAss"), "Zentaro.mkvOther.mkv");
}

TEST_F(Associations, what_the_desktop_says_goes_before_what_the_store_remembers)
{
    AssociationFlags flags{};
    flags[kMkv] = 1;
    Class(".mkv:") = "old.desktop";
    shell.live[".mkv"] = { false, "new.desktop", "/new.png" };
    types.ApplyAssociations(flags);
    EXPECT_EQ(Class(".mkv:OldAss"), "new.desktop");
    EXPECT_EQ(Class("new.desktop\\DefaultIcon:"), "/new.png");
    shell.live[".mkv"] = { true, "zentaro.desktop", "" };
    types.ApplyAssociations(flags);
    EXPECT_EQ(Class(".mkv:OldAss"), "new.desktop");
    shell.live[".mkv"] = { false, "third.desktop", "" };
    types.ApplyAssociations({});
    EXPECT_EQ(Class(".mkv:"), "third.desktop");
}

TEST(ListIcons, come_from_the_owner_or_else_from_the_program_folder)
{
    MemoryStore store;
    std::string asked;
    const auto extract = [&](const std::string& file, std::int32_t index) {
        asked += file + "#" + std::to_string(index);
        return Picture(1, 1, { 0 });
    };
    const auto load = [&](const std::string& file) {
        asked += file;
        return file == "gone.ico" ? Picture() : Picture(1, 1, { 0 });
    };
    const ModIcons icons(store, { extract, load }, "C:\\", '\\');
    const std::pair<const char*, const char*> rows[] = { { "C:\\a,b\\x.DLL,-12", "C:\\a,b\\x.DLL#-12" },
        { "\"C:\\x.exe\", 2", "C:\\x.exe#2" }, { "C:\\x.exe", "C:\\x.exe#0" }, { "C:\\a,b.ico", "C:\\a,b.ico" },
        { "C:\\a.ico,0", "C:\\a.ico" }, { "gone.ico", "gone.icoC:\\icons\\Unkowen.bmp" },
        { "", "C:\\icons\\Unkowen.bmp" }, { "x.exe,99999999999", "x.exe,99999999999" } };
    for (const auto& [iconText, expected] : rows) {
        store.values = { { ".avi:", "Owner" }, { "Owner\\DefaultIcon:", iconText } };
        asked.clear();
        EXPECT_TRUE(icons.OwnerIcon(".avi"));
        EXPECT_EQ(asked, expected);
    }
}

} // namespace
} // namespace zentaro
