#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace zentaro {

/// Keys and values in the order of their insertion.
class Dictionary {
public:
    using Value = std::variant<std::string, std::int32_t, float, bool, Dictionary>;
    struct Entry;

    Dictionary();
    ~Dictionary();
    Dictionary(const Dictionary&);
    Dictionary(Dictionary&&) noexcept;
    Dictionary& operator=(const Dictionary&);
    Dictionary& operator=(Dictionary&&) noexcept;

    /// A new key goes to the end; a known one keeps its place and gets the new value.
    void Set(std::string_view key, Value value);
    /// Null when the key is missing. Keys are case-sensitive.
    const Value* Find(std::string_view key) const;
    /// The value of a key, or a default-made T when the key is missing or its value has another type.
    template <class T> T Get(std::string_view key) const;
    const std::vector<Entry>& Entries() const { return m_entries; }

    bool operator==(const Dictionary& other) const;

private:
    std::vector<Entry> m_entries;
};

struct Dictionary::Entry {
    std::string key;
    Value value;
    bool operator==(const Entry&) const = default;
};

template <class T> T Dictionary::Get(std::string_view key) const
{
    const auto* const value = Find(key);
    const auto* const typed = value ? std::get_if<T>(value) : nullptr;
    return typed ? *typed : T();
}

} // namespace zentaro
