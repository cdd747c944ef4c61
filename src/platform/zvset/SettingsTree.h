#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace zv {

/// A tree of values under keys. A path joins keys with "\" ("Post#1\USET#1\QUAL_NAME"); each piece
/// of it is one level. A place of the tree holds a value or a branch, never both. Texts are UTF-8.
class SettingsTree {
  public:
    using Value = std::variant<bool, std::int64_t, double, std::string>;
    using Branches = std::map<std::string, SettingsTree, std::less<>>;

    /// Levels below the root: deep enough for every key, shallow enough for recursion.
    static constexpr std::size_t kMaxDepth = 16;
    static std::size_t Depth(std::string_view path);

    SettingsTree() = default;
    explicit SettingsTree(Value value) : m_value(std::move(value)) {}

    /// The place under a path, null when there is none. Owned by the tree.
    const SettingsTree* Find(std::string_view path) const;
    SettingsTree* Find(std::string_view path);
    /// The place under a path, made where it is missing. A value on the way gives way to a branch.
    /// REQUIRES: a depth, counted from the root, of no more than kMaxDepth.
    SettingsTree& Make(std::string_view path);
    /// Takes a place and everything below it out; false when there is none.
    bool Remove(std::string_view path);

    /// The value here, null on a branch.
    const Value* GetValue() const { return m_value ? &*m_value : nullptr; }
    /// Puts a value here; a branch gives way to it.
    void SetValue(Value value);

    /// What lies below, in the order of the keys; empty on a value.
    const Branches& GetBranches() const { return m_branches; }
    Branches& GetBranches() { return m_branches; }

  private:
    std::optional<Value> m_value;
    Branches m_branches;
};

} // namespace zv
