#include "items/SymbolMap.h"

#include <algorithm>
#include <fstream>

#include "items/SymbolFiles.h"
#include "platform/Numbers.h"
#include "platform/win/Files.h"
#include "platform/win/MessageBox.h"

namespace {

constexpr std::size_t kName = 6, kUnused = 11, kNumber = 3;

/// Next line without its end, CR LF or LF; false at the end of the file, which 0x1A marks too.
bool NextLine(std::istream& in, std::string& line) {
    if (!std::getline(in, line)) return false;
    if (const std::size_t end = line.find('\x1a'); end != std::string::npos) {
        line.resize(end);
        in.setstate(std::ios::eofbit);
    }
    if (line.ends_with('\r')) line.pop_back();
    return true;
}

std::string Name(const std::string& line) {
    std::string name = line.substr(0, kName);
    name.erase(name.find_last_not_of(' ') + 1);
    std::transform(name.begin(), name.end(), name.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; });
    return name;
}

} // namespace

CZvDispSymbolMap& CZvDispSymbolMap::Get() {
    static CZvDispSymbolMap map;
    return map;
}

void CZvDispSymbolMap::ReadNames(std::istream& in, Names& names) {
    for (std::string line; NextLine(in, line);) {
        if (line.starts_with('c')) continue;
        const std::string name = Name(line);
        if (name.empty()) continue;
        const std::size_t at = std::min(kName + kUnused, line.size());
        names[name] = zv::ParseInt(line.substr(at, kNumber));
    }
}

void CZvDispSymbolMap::Load() {
    m_loaded = true;
    const std::string path = zv::SymbolHomePath() + "symmap.tab";
    std::ifstream in(zv::NativePath(path), std::ios::binary);
    if (!in) {
        AfxMessageBox("Could not open symbol map file:\n" + path +
                      "\nSymbols will not display properly.");
        return;
    }
    ReadNames(in, m_names);
}

std::optional<int> CZvDispSymbolMap::Find(const std::string& name) {
    zv::LoadSymbolFilesOnce(); // empties this too when the folders have moved
    if (!m_loaded) Load();
    const auto found = m_names.find(name);
    if (found == m_names.end()) return std::nullopt;
    return found->second;
}

void CZvDispSymbolMap::Clear() {
    m_loaded = false;
    m_names.clear();
}
