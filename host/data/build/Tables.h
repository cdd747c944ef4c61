#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "data/project/Project.h"

namespace zv::host {

/// A table whose rows complete those of a source.
class JoinTable {
  public:
    /// Reads the whole table. Throws DataError on a file or key field that is not there. Of rows
    /// with one key the first counts; blanks at both ends of keys do not.
    JoinTable(const Join& join, const std::string& folder);

    const std::vector<std::string>& Fields() const { return m_fields; }
    /// The row of a key; empty values where there is none.
    const std::vector<std::string>& Find(const std::string& key) const;

  private:
    std::vector<std::string> m_fields;
    std::vector<std::string> m_none;
    std::unordered_map<std::string, std::vector<std::string>> m_rows;
};

} // namespace zv::host
