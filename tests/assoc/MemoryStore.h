#pragma once

#include "platform/StringStore.h"

#include <functional>
#include <map>

namespace zentaro {

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

} // namespace zentaro
