#include "app/StateFiles.h"

#include "platform/Files.h"

#include <utility>

namespace zentaro {

namespace {

using namespace std::chrono_literals;

constexpr auto kDelay = 2s; // with the writing itself, less than five are lost

void WriteAll(const std::vector<StateFiles::File>& files)
{
    for (const auto& file : files)
        IgnoreFailure(platform::ReplaceTextFile(file.path, file.text()));
}

} // namespace

StateFiles::StateFiles(Needs needs, TakeChanged takeChanged)
    : m_needs(std::move(needs))
    , m_takeChanged(std::move(takeChanged))
{
}

void StateFiles::WriteSoon()
{
    if (std::exchange(m_isWaiting, true) || m_isWriting)
        return;
    m_needs.after(kDelay, [this, alive = std::weak_ptr(m_isAlive)] {
        if (!alive.expired())
            Write();
    });
}

void StateFiles::Write()
{
    m_isWaiting = false;
    m_isWriting = true;
    m_needs.runInBackground([this, files = m_takeChanged(), alive = std::weak_ptr(m_isAlive)] {
        WriteAll(files);
        // Only now the next: two that write at once could end in the wrong order.
        return [this, alive] {
            if (alive.expired())
                return;
            m_isWriting = false;
            if (std::exchange(m_isWaiting, false))
                WriteSoon();
        };
    });
}

void StateFiles::WriteNow()
{
    WriteAll(m_takeChanged());
}

} // namespace zentaro
