#include <algorithm>

#include "cli/Output.h"
#include "cli/Picture.h"
#include "cli/ReportJson.h"
#include "cli/Scratch.h"
#include "cli/Verbs.h"
#include "data/furniture/FurnitureBuilder.h"
#include "items/ZvDispSymbols.h"
#include "map/ZvDispMap.h"
#include "platform/Numbers.h"
#include "platform/Text.h"

namespace zv::host {
namespace {

constexpr int kColumns = 5;
constexpr double kCellWidth = 30.0; ///< in heights of a label's letter
constexpr double kCellHeight = 4.0;
constexpr double kPixelsPerUnit = 13.0;
constexpr int kPaper = 16, kInk = 17, kPale = 20;

std::vector<int> Numbers() {
    const CZvDispSymbols first; // loads the library
    const std::list<int>& loaded = *CZvDispSymbols::S_GetSymbolNumList();
    std::vector<int> numbers(loaded.begin(), loaded.end());
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

/// North arrows are twice as high as other symbols.
bool IsNorthArrow(int number) {
    return number == 500 || number == 501 || (number >= 23 && number <= 26);
}

std::string Description(int number) {
    std::string text;
    CZvDispSymbols::S_GetSymDesc(number, text);
    text.erase(text.find_last_not_of(" \r\n") + 1);
    return text;
}

/// The chart as a map of custom graphics, one cell for each symbol.
class Chart {
  public:
    explicit Chart(const std::vector<int>& numbers, const std::string& scratch)
        : m_rows((int(numbers.size()) + kColumns - 1) / kColumns) {
        m_map.SetUseWaitCursor(false);
        m_map.SetMemManage(false);
        m_map.SetDispFilePath(scratch);
        for (std::size_t i = 0; i < numbers.size(); ++i)
            AddCell(int(i), numbers[i]);
    }

    CZvDispMap& Map() { return m_map; }
    double Width() const { return kColumns * kCellWidth + 2.0; }
    double Height() const { return m_rows * kCellHeight + 2.0; }

  private:
    /// Numbers run down the columns.
    void AddCell(int index, int number) {
        const double x = (index / m_rows) * kCellWidth + 1.0;
        const double y = (m_rows - index % m_rows - 1) * kCellHeight + 1.0;
        auto symbol = std::make_unique<CZvDispSymbols>(CZvDispPoint(x + 2.2, y + 2.0), number);
        symbol->SetScale(IsNorthArrow(number) ? 1.6 : 2.2);
        symbol->SetColor(ZVColor(kInk), 0);
        symbol->SetFillColor(ZVColor(85), 0);
        Add(std::move(symbol), 556);
        AddText(x + 4.8, y + 2.1, 0.8, FormatInt(number), kInk, 1);
        const std::string description = Description(number);
        AddText(x + 4.8, y + 1.0, FittingHeight(description, kCellWidth - 5.8, 0.62), description,
                kPale, 0);
    }

    void AddText(double x, double y, double height, const std::string& label, int colour,
                 int width) {
        auto text = std::make_unique<CZvDispText>();
        text->SetLabel(label);
        text->SetPoint({x, y});
        text->SetVertHeight(float(height));
        text->SetHorzJustify('l');
        text->SetColor(ZVColor(colour), 0);
        text->SetLineWidth(static_cast<unsigned char>(width), 0);
        Add(std::move(text), 550);
    }

    void Add(std::unique_ptr<CZvDisplayItem> item, int culture) {
        item->SetPara(&m_para);
        m_map.AddItem(item.get(), E_LAYER_CUSTOM, 1, 1, ZVCulture(culture), false);
        item.release();
    }

    int m_rows;
    CZvDisplayItemPara m_para{true};
    CZvDispMap m_map{nullptr};
};

void Draw(const std::vector<int>& numbers, const std::string& output) {
    const Scratch scratch;
    Chart chart(numbers, scratch.Name());
    PictureStyle style;
    style.width = int(chart.Width() * kPixelsPerUnit);
    style.height = int(chart.Height() * kPixelsPerUnit);
    style.view = {0.0, 0.0, chart.Width(), chart.Height()};
    style.background = kPaper;
    Picture picture(style);
    picture.Draw(chart.Map());
    picture.Save(output);
}

std::string ListText(const std::vector<int>& numbers) {
    std::string text;
    for (const int number : numbers) {
        const std::string digits = FormatInt(number);
        text += std::string(digits.size() < 4 ? 4 - digits.size() : 0, ' ') + digits + "  " +
                ToUtf8(Description(number)) + "\n";
    }
    return text;
}

std::string ListJson(const std::vector<int>& numbers) {
    auto json = nlohmann::ordered_json::array();
    for (const int number : numbers)
        json.push_back({{"number", number}, {"description", ToUtf8(Description(number))}});
    return JsonText(json);
}

/// What a run would write.
void ListOutput(const SymbolsOptions& options) {
    auto files = nlohmann::ordered_json::array();
    if (options.output) files.push_back(*options.output);
    if (options.common.json) return PutOut(JsonText({{"writes", files}}));
    if (options.output) PutOut(*options.output + "\n");
}

} // namespace

void Symbols(const SymbolsOptions& options) {
    if (options.output) CheckOutput(*options.output, {});
    if (options.common.dryRun) return ListOutput(options);
    const std::vector<int> numbers = Numbers();
    if (options.output) Draw(numbers, *options.output);
    PutOut(options.common.json ? ListJson(numbers) : ListText(numbers));
}

} // namespace zv::host
