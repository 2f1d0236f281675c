#include "platform/AssociationShell.h"

#include <shlobj.h>
#include <windows.h>

namespace zentaro::platform {
namespace {

class Explorer : public AssociationShell {
public:
    bool Refresh() override { return true; }
    std::optional<LiveOwner> CurrentOwner(const std::string&) override { return std::nullopt; }
    void AssociationsChanged() override { SHChangeNotify(SHCNE_ASSOCCHANGED, SHCNF_IDLIST, nullptr, nullptr); }
    bool BringInLine(const std::vector<AssociatedType>&) override { return true; }
};

} // namespace

std::unique_ptr<AssociationShell> AssociationShell::Open(const std::string&, const std::string&)
{
    return std::make_unique<Explorer>();
}

std::string ShortProgramPath()
{
    std::string path(32'768, '\0');
    path.resize(GetModuleFileNameA(nullptr, path.data(), static_cast<DWORD>(path.size())));
    std::string shortPath(32'768, '\0');
    const auto size = GetShortPathNameA(path.c_str(), shortPath.data(), static_cast<DWORD>(shortPath.size()));
    // A volume may have no short names.
    return size == 0 || size >= shortPath.size() ? path : shortPath.substr(0, size);
}

} // namespace zentaro::platform
