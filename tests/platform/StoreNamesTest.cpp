#include "desktop/StoreNames.h"

#include <gtest/gtest.h>
#include <set>

namespace zentaro::desktop {
namespace {

TEST(StoreNames, are_readable_and_differ_for_different_values)
{
    EXPECT_EQ(StoreFileName("Software\\Some Maker\\Zentaro", "txtHwnd"), "Software/Some Maker/Zentaro/txtHwnd");
    const std::pair<std::string, std::string> values[] = { { "", "" }, { "", "A" }, { "A", "" }, { "A", "_" },
        { "A", "_default" }, { "A", "default" }, { "A\\B", "" }, { "A", "B" }, { "A", "B\\" }, { "A\\", "B" },
        { "\\A", "B" }, { "A\\\\B", "C" }, { "A\\B", "C" }, { "A", "B\\C" }, { "A/B", "C" }, { "A_2FB", "C" },
        { "A", "B/C" }, { "A", "\xC3\xA4" }, { "A", "\xE4" }, { "A", std::string("\0", 1) }, { "a", "b" } };
    std::set<std::string> names;
    for (const auto& [key, name] : values)
        EXPECT_TRUE(names.insert(StoreFileName(key, name)).second) << key << " | " << name;
}

} // namespace
} // namespace zentaro::desktop
