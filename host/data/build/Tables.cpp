#include "data/build/Tables.h"

#include <algorithm>

#include "data/project/Words.h"
#include "data/read/FeatureReader.h"
#include "platform/Error.h"

namespace zv::host {
JoinTable::JoinTable(const Join& join, const std::string& folder) {
    Source source;
    source.file = join.file;
    const auto reader = OpenSource(source, folder);
    m_fields = reader->Fields();
    m_none.resize(m_fields.size());
    const auto key = std::find(m_fields.begin(), m_fields.end(), join.key);
    if (key == m_fields.end())
        throw DataError(SourcePath(join.file, "", folder), "", "has no field \"" + join.key + "\"");
    const auto place = std::size_t(key - m_fields.begin());
    Feature feature;
    while (reader->Next(feature)) {
        std::string value(Trimmed(feature.values[place]));
        m_rows.try_emplace(std::move(value), feature.values);
    }
}

const std::vector<std::string>& JoinTable::Find(const std::string& key) const {
    const auto found = m_rows.find(std::string(Trimmed(key)));
    return found == m_rows.end() ? m_none : found->second;
}

} // namespace zv::host
