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
    long long rejected = 0; ///< rows that were to give items and gave none
    long long fewer = 0;    ///< rows that gave items, but not all that were asked of them
    std::map<std::string, long long> reasons; ///< rows of both kinds by what was wrong with them
    int lostCharacters = 0;                   ///< of labels, without a place in code page 1252
};

struct LoadReport {
    std::vector<SourceReport> sources;
    long long labels = 0;       ///< placed where they are clear of symbols and other labels
    long long hiddenLabels = 0; ///< made invisible since no room was left

    long long Items() const;
    long long Rejected() const;
    long long Fewer() const;
};

/// Follows one row until all that it can give has been made, which for a row of a group is when the
/// group ends; then counts it in the report, which it borrows.
class RowOutcome {
  public:
    explicit RowOutcome(SourceReport& report) : m_report(report) {}
    ~RowOutcome();
    RowOutcome(const RowOutcome&) = delete;
    RowOutcome& operator=(const RowOutcome&) = delete;

    /// A rule acts on the row.
    void Ask() { m_asked = true; }
    void Give() { m_gave = true; }
    /// A row that fails in several rules counts once for each reason.
    void Reject(const std::string& reason);

  private:
    SourceReport& m_report;
    bool m_asked = false;
    bool m_gave = false;
    std::vector<std::string> m_reasons;
};

} // namespace zv::host
