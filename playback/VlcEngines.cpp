#include "playback/VlcEngines.h"

#include "playback/VlcEngine.h"

namespace zentaro {

std::unique_ptr<Engine> VlcEngines::Create()
{
    if (!m_items.IsPrepared())
        return nullptr;
    return std::make_unique<VlcEngine>(m_items);
}

} // namespace zentaro
