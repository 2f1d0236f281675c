#pragma once

#include "app/Previews.h"

namespace zentaro {

/// For windows that nobody points at.
struct NoPreviews : PreviewRunner {
    void Recall(const std::string&, const std::vector<PreviewPlace>&, std::function<void(Made, const Stamp&)>) override
    {
    }
    void Make(const std::string&, const PreviewPlace&, std::function<void(PreviewBytes)>) override { }
    void Cancel() override { }

    Previews none{ *this, [](const std::string&) { return true; }, [](auto, const auto&) {} };
};

} // namespace zentaro
