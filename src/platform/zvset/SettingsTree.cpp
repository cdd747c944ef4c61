#include "platform/zvset/SettingsTree.h"

#include <algorithm>
#include <utility>

namespace zv {
namespace {

/// Takes the first key off a path; the rest is no more when the path ends there.
std::string_view TakeKey(std::optional<std::string_view>& path) {
    const std::size_t end = path->find('\\');
    const std::string_view key = path->substr(0, end);
    if (end == std::string_view::npos) {
        path.reset();
    } else {
        path->remove_prefix(end + 1);
    }
    return key;
}

} // namespace

std::size_t SettingsTree::Depth(std::string_view path) {
    return 1 + static_cast<std::size_t>(std::count(path.begin(), path.end(), '\\'));
}

const SettingsTree* SettingsTree::Find(std::string_view path) const {
    const SettingsTree* place = this;
    for (std::optional rest(path); rest;) {
        const auto next = place->m_branches.find(TakeKey(rest));
        if (next == place->m_branches.end()) {
            return nullptr;
        }
        place = &next->second;
    }
    return place;
}

SettingsTree* SettingsTree::Find(std::string_view path) {
    return const_cast<SettingsTree*>(std::as_const(*this).Find(path));
}

SettingsTree& SettingsTree::Make(std::string_view path) {
    SettingsTree* place = this;
    for (std::optional rest(path); rest;) {
        place->m_value.reset();
        place = &place->m_branches.try_emplace(std::string(TakeKey(rest))).first->second;
    }
    return *place;
}

bool SettingsTree::Remove(std::string_view path) {
    const std::size_t last = path.rfind('\\');
    const bool isHere = last == std::string_view::npos;
    SettingsTree* above = isHere ? this : Find(path.substr(0, last));
    if (!above) {
        return false;
    }
    const auto found = above->m_branches.find(isHere ? path : path.substr(last + 1));
    if (found == above->m_branches.end()) {
        return false;
    }
    above->m_branches.erase(found);
    return true;
}

void SettingsTree::SetValue(Value value) {
    m_branches.clear();
    m_value = std::move(value);
}

} // namespace zv
