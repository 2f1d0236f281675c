#include "inspect/Dictionary.h"

#include <algorithm>
#include <utility>

namespace zentaro {

Dictionary::Dictionary() = default;
Dictionary::~Dictionary() = default;
Dictionary::Dictionary(const Dictionary&) = default;
Dictionary::Dictionary(Dictionary&&) noexcept = default;
Dictionary& Dictionary::operator=(const Dictionary&) = default;
Dictionary& Dictionary::operator=(Dictionary&&) noexcept = default;

void Dictionary::Set(std::string_view key, Value value)
{
    const auto known =
        std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry& entry) { return entry.key == key; });
    if (known != m_entries.end())
        known->value = std::move(value);
    else
        m_entries.push_back({ std::string(key), std::move(value) });
}

const Dictionary::Value* Dictionary::Find(std::string_view key) const
{
    const auto known =
        std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry& entry) { return entry.key == key; });
    return known == m_entries.end() ? nullptr : &known->value;
}

bool Dictionary::operator==(const Dictionary& other) const
{
    return m_entries == other.m_entries;
}

} // namespace zentaro
