#pragma once

#include <map>
#include <string>
#include <vector>

namespace zv::host {

/// What became of one source's rows.
struct SourceReport {
    std::string name;
    long long rows = 0;     ///< read
    long long filtered = 0; ///< left out because the project's conditions do not hold for them
    long long items = 0;    ///< made
    std::map<std::string, long long>
        rejected;           ///< rows that gave no item, or one too few, by reason
    int lostCharacters = 0; ///< of labels, without a place in code page 1252

    long long Rejected() const;
};

struct LoadReport {
    std::vector<SourceReport> sources;
    long long labels = 0;       ///< placed where they are clear of symbols and other labels
    long long hiddenLabels = 0; ///< made invisible since no room was left

    long long Items() const;
    long long Rejected() const;
};

} // namespace zv::host
