#pragma once

#include <string>
#include <vector>

#include "items/ZvDispSymbols.h"
#include "platform/win/MessageBox.h"
#include "platform/zvcom/ZvUtRegistry.h"
#include "support/TempFolder.h"

namespace zv::test {

/// Home and work folders of its own with the symbol files that a test writes, an empty symbol
/// library, and a message host that records; everything is put back at the end of the scope.
class SymbolHome {
  public:
    SymbolHome() : m_before(SetMessageHost(&messages)) {
        std::filesystem::create_directories(m_home.Path() / "Template");
        std::filesystem::create_directories(m_work.Path() / "Template");
        CZvUtRegistry::S_Override(CZvUtRegistry::S_GetHomePath(), CZvUtRegistry::S_GetHomeKey(),
                                  m_home.Path());
        CZvUtRegistry::S_Override(CZvUtRegistry::S_GetWorkPath(), CZvUtRegistry::S_GetWorkKey(),
                                  m_work.Path());
        CZvDispSymbols::S_ClearSymbolsMap();
    }
    ~SymbolHome() {
        CZvUtRegistry::S_Override(CZvUtRegistry::S_GetHomePath(), CZvUtRegistry::S_GetHomeKey(),
                                  "");
        CZvUtRegistry::S_Override(CZvUtRegistry::S_GetWorkPath(), CZvUtRegistry::S_GetWorkKey(),
                                  "");
        CZvDispSymbols::S_ClearSymbolsMap();
        SetMessageHost(m_before);
    }
    SymbolHome(const SymbolHome&) = delete;
    SymbolHome& operator=(const SymbolHome&) = delete;

    void Write(const std::string& file, const std::string& text) {
        WriteText(m_home.Path() / "Template" / file, text);
    }
    void WriteWork(const std::string& file, const std::string& text) {
        WriteText(m_work.Path() / "Template" / file, text);
    }
    /// Empty files under the names of the three that must be there, and an empty name file.
    void WriteEmptyFiles() {
        for (const char* file : {"welsym.tab", "shotsym.tab", "master.sym", "symmap.tab"})
            Write(file, "");
    }
    std::string HomeTemplate() const { return m_home.Path().string() + "\\Template\\"; }
    std::string WorkTemplate() const { return m_work.Path().string() + "\\Template\\"; }
    std::string TempFile(const std::string& name) const { return m_work / name; }

    HeadlessMessageHost messages;

  private:
    TempFolder m_home, m_work;
    MessageHost* m_before;
};

/// Pads every line of a text to 80 columns and ends it with CR LF.
inline std::string DrawingLines(const std::vector<std::string>& lines) {
    std::string text;
    for (std::string line : lines) {
        if (line.size() < 80) line.resize(80, ' ');
        text += line + "\r\n";
    }
    return text;
}

/// A symbol of one line from (0, 0) to (1, 2), zero-based colour 4, width 0, type 0.
inline std::string LineSymbol(int number, const std::string& description = "") {
    const std::string n = CZvDisplayItem::PadBlankToFront(std::to_string(number), 3);
    std::vector<std::string> lines = {
        "COV:" + n + "13 999LW:  1LT:  1COL:  5X:           0.00000000",
        "Y:           0.00000000",
        "COV2:  14X:           1.00000000Y:           2.00000000",
    };
    if (!description.empty()) {
        lines.push_back("CTX:" + n + "23NUM:" +
                        CZvDisplayItem::PadBlankToFront(std::to_string(description.size()), 2));
        lines.push_back(description);
    }
    // The end of a symbol: EOF and its number, with code 20 and 71 blanks: 80 columns.
    lines.push_back("EOF:" + n + "20");
    return " SYMBOL # " + CZvDisplayItem::PadBlankToFront(std::to_string(number), 4) + "\r\n" +
           DrawingLines(lines);
}

} // namespace zv::test
