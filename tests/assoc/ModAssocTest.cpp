#include "assoc/ModAssoc.h"
#include "assoc/ModIcons.h"
#include "tests/assoc/MemoryStore.h"

#include <gtest/gtest.h>

namespace zentaro {
namespace {

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

TEST_F(Associations, a_registered_type_has_two_verbs_and_an_icon)
{
    types.AssociateType(kMkv);
    EXPECT_EQ(Class("Zentaro.mkv:"), "Zentaro mkv File");
    EXPECT_EQ(Class("Zentaro.mkv\\shell\\open\\command:"), "C:\\PROGRA~1\\Zentaro.exe %1");
    EXPECT_EQ(Class("Zentaro.mkv\\shell\\Add To Playlist\\command:"), "C:\\PROGRA~1\\Zentaro.exe %1 *Add");
    EXPECT_EQ(Class("Zentaro.mkv\\DefaultIcon:"), "C:\\Program Files\\icons\\mkv.ico");
    for (const auto* key : { "Zentaro.mkv\\shell", "Zentaro.mkv\\shell\\open", "Zentaro.mkv\\shell\\Add To Playlist" })
        EXPECT_TRUE(Has(key + std::string(":")) && Class(key + std::string(":")).empty()) << key;
    types.RegisterVerb("Zentaro.x", "x", "open", "", "");
    EXPECT_EQ(Class("Zentaro.x\\DefaultIcon:"), "C:\\PROGRA~1\\Zentaro.exe");
}

TEST_F(Associations, a_taken_type_comes_back_with_its_traces)
{
    Class(".mkv:") = "OtherPlayer.mkv";
    Chosen("ProgID") = "Chosen.mkv";
    types.AssociateType(kMkv);
    types.AssociateType(kMkv);
    EXPECT_EQ(Class(".mkv:"), "Zentaro.mkv");
    EXPECT_EQ(Class(".mkv:OldAss"), "OtherPlayer.mkv");
    EXPECT_EQ(Chosen("ProgID"), "Zentaro.mkv");
    EXPECT_EQ(Chosen("OldProgID"), "Chosen.mkv");
    EXPECT_EQ(shell.notices, 1);

    types.UnassociateType(kMkv);
    types.UnassociateType(kMkv);
    EXPECT_EQ(Class(".mkv:"), "OtherPlayer.mkv");
    EXPECT_FALSE(Has(".mkv:OldAss"));
    EXPECT_EQ(Class(".mkv:OldProgID"), "Dummy");
    EXPECT_EQ(Chosen("ProgID"), "Chosen.mkv");
    EXPECT_EQ(Chosen("OldProgID"), "Chosen.mkv");
    EXPECT_EQ(Class("Zentaro.mkv:"), "Zentaro mkv File");
    EXPECT_EQ(shell.notices, 2);
    // Without an owner before, it has none again.
    Class(".mkv:") = "";
    types.AssociateType(kMkv);
    types.UnassociateType(kMkv);
    EXPECT_TRUE(Has(".mkv:") && Class(".mkv:").empty());
}

TEST_F(Associations, indexes_outside_the_table_change_nothing)
{
    for (const int index : { -1, 24, 32767, -32768 }) {
        types.AssociateType(static_cast<std::int16_t>(index));
        types.UnassociateType(static_cast<std::int16_t>(index));
    }
    EXPECT_TRUE(store.values.empty());
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
    store.refuses = [](const std::string& place) { return place == ".mkv:"; };
    types.ApplyAssociations(flags);
    EXPECT_EQ(Class(".mkv:"), "Other.mkv");
    EXPECT_FALSE(Has(".mkv:OldAss") || Has(kChosen + std::string("ProgID")));
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
    const auto found = Picture(1, 1, { 0 });
    const ModIcons icons(store,
        { [&](const std::string& file, std::int32_t index) {
             asked += file + "#" + std::to_string(index) + " ";
             return found;
         },
            [&](const std::string& file) {
                asked += file + " ";
                return file == "gone.ico" ? Picture() : found;
            } },
        "C:\\", '\\');
    const auto ask = [&](const std::string& iconText) {
        store.values = { { ".avi:", "Owner" }, { "Owner\\DefaultIcon:", iconText } };
        asked.clear();
        EXPECT_TRUE(icons.OwnerIcon(".avi"));
        return asked;
    };
    EXPECT_EQ(ask("C:\\a,b\\x.DLL,-12"), "C:\\a,b\\x.DLL#-12 ");
    EXPECT_EQ(ask("\"C:\\x.exe\", 2"), "C:\\x.exe#2 ");
    EXPECT_EQ(ask("C:\\x.exe"), "C:\\x.exe#0 ");
    EXPECT_EQ(ask("C:\\a,b.ico"), "C:\\a,b.ico ");
    EXPECT_EQ(ask("C:\\a.ico,0"), "C:\\a.ico ");
    EXPECT_EQ(ask("gone.ico"), "gone.ico C:\\icons\\Unkowen.bmp ");
    EXPECT_EQ(ask(""), "C:\\icons\\Unkowen.bmp ");
    EXPECT_EQ(ask("x.exe,99999999999"), "x.exe,99999999999 ");
}

} // namespace
} // namespace zentaro
