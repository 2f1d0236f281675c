#include "app/SingleInstance.h"

#include "shell/Caption.h"

#include <utility>

namespace zentaro {

namespace {

constexpr auto kRoot = platform::StringStore::Root::CurrentUser;

constexpr int kMostCalls = 2; // before this process plays by itself

} // namespace

std::string HandOverKey()
{
    return platform::SettingsKey(kApplicationTitle, "Setting");
}

SingleInstance::SingleInstance(HandOverService service, platform::StringStore& store, char separator)
    : m_service(std::move(service))
    , m_store(store)
    , m_separator(separator)
{
}

std::string SingleInstance::Read(const char* name, const char* fallback)
{
    return m_store.Read(kRoot, HandOverKey(), name, fallback);
}

bool SingleInstance::IsPlayerThere()
{
    return Read("txtHwnd", "-1") != "-1" && m_service.isAlive(Read("txtHwnd1", ""));
}

bool SingleInstance::BecomePlayer(StartupRequest request, bool useNewPlayer, bool takesAllMedia)
{
    m_request = std::move(request);
    std::string silent;
    for (int calls = 0;; ++calls) {
        auto lock = m_service.lock();
        const PublishedHandles handles{ Read("txtHwnd", "-1"), Read("txtHwnd1", "") };
        const auto role = DecideRole(m_request, handles, useNewPlayer, m_service.isAlive, m_separator, takesAllMedia);
        // A player can end or hang between the test and the call. Then it is decided once more; nobody is called again
        // whom the first call did not reach.
        const bool mayCall = calls < kMostCalls && role.handle != silent;
        if (role.kind == StartRole::Kind::Player || (!role.text.empty() && !mayCall)) {
            Publish();
            return true;
        }
        lock.reset();
        if (role.text.empty() || m_service.send(role.handle, role.text) != platform::HandOverOutcome::Silent)
            return false;
        m_service.tell("The player that runs already does not answer.");
        silent = role.handle;
    }
}

void SingleInstance::AddElsewhere(const std::vector<std::string>& paths)
{
    const auto handle = paths.empty() ? std::string() : Read(kAddHandle, "");
    for (const auto& path : paths) {
        if (handle.empty() || m_service.send(handle, path) == platform::HandOverOutcome::Silent)
            return m_service.tell("No player took " + path + ".");
    }
}

void SingleInstance::Publish()
{
    auto ends = m_service.listen();
    if (!ends)
        return; // a player that cannot be reached plays all the same
    m_ends = std::move(*ends);
    // Each change by itself would wait for the disk.
    m_store.BeginBatch();
    IgnoreFailure(m_store.Write(kRoot, HandOverKey(), "txtHwnd", m_ends->CommandHandle()));
    IgnoreFailure(m_store.Write(kRoot, HandOverKey(), "txtHwnd1", m_ends->ProbeHandle()));
    IgnoreFailure(m_store.Write(kRoot, HandOverKey(), kAddHandle, m_ends->AddHandle()));
    IgnoreFailure(m_store.CommitBatch());
}

void SingleInstance::Receive(std::function<void(std::string text, platform::HandOverDone done)> onText)
{
    if (m_ends)
        m_ends->Deliver(std::move(onText));
}

void SingleInstance::ReceiveAdded(std::function<void(std::string path)> onPath)
{
    if (!m_ends)
        return;
    m_ends->DeliverAdded([onPath = std::move(onPath)](std::string path, const platform::HandOverDone& done) {
        onPath(std::move(path));
        done();
    });
}

} // namespace zentaro
