#pragma once

#include <memory>
#include <vector>

#include "data/build/MapFrame.h"
#include "data/project/Project.h"
#include "data/read/Feature.h"
#include "items/ZvDispSymbols.h"
#include "items/ZvDisplayItemPara.h"

namespace zv::host {

using ItemPtr = std::unique_ptr<CZvDisplayItem>;

/// UTF-8 as a label: single bytes, the degree sign as the tab that stands for it in the stroke
/// font. `lost` grows by each character without a place.
std::string LabelText(const std::string& utf8, int& lost);

/// A point with the direction of what it lies on, in degrees.
struct Stand {
    CZvDispPoint point;
    double direction = 0.0;
};

/// Where a symbol or text of a piece of geometry stands: a point itself, the centre of an area,
/// the middle of a line's longest stretch, or an end of a line.
Stand StandOf(const Part& part, Anchor anchor);

/// An angle by which text reads from the left: from -90 to 90 degrees.
double Upright(double degrees);

/// Puts a text with its base line at a point. A turned text is justified by moving its start along
/// its own direction: contexts that set it in an outline face justify along X only.
/// REQUIRES: label and height are set.
void PutText(CZvDispText& text, const CZvDispPoint& point, char horizontal, double degrees);

/// Items, or, where there are none, why not.
struct Made {
    std::vector<ItemPtr> items;
    std::string problem;
};

/// Turns pieces of geometry on the map into items, as a rule says.
class ItemMaker {
  public:
    /// Borrows all three; `para` goes into every item.
    ItemMaker(const MapFrame& frame, CZvDisplayItemPara* para, int& lostCharacters)
        : m_frame(frame), m_para(para), m_lost(lostCharacters) {}

    /// The items of one rule for one piece, all for the rule's place.
    Made Make(const ItemRule& rule, const Row& row, const Part& part) const;

    /// Where an offset of the rule is counted from; for labels that look for room.
    CZvDispPoint AnchorOf(const ItemRule& rule, const Part& part) const {
        return StandOf(part, rule.at).point;
    }

  private:
    /// These throw NoItem (a reason) where the row or its geometry gives none.
    ItemPtr MakeLine(const Part& part) const;
    ItemPtr MakePolygon(const Part& part) const;
    ItemPtr MakeSymbol(const ItemRule& rule, const Row& row, const Part& part) const;
    ItemPtr MakeText(const ItemRule& rule, const Row& row, const Part& part) const;
    ItemPtr MakeCircle(const ItemRule& rule, const Row& row, const Part& part) const;
    std::vector<ItemPtr> MakeLineNumber(const ItemRule& rule, const Row& row,
                                        const Part& part) const;
    std::string LabelOf(const ItemRule& rule, const Row& row) const;
    double AngleOf(const ItemRule& rule, const Row& row, const Stand& stand) const;
    std::vector<ItemPtr> MakeAll(const ItemRule& rule, const Row& row, const Part& part) const;
    ItemPtr NumberText(const ItemRule& rule, const std::string& label,
                       const std::vector<ItemPtr>& ends, double degrees) const;
    CZvDispPoint Shifted(const ItemRule& rule, const Stand& stand, double degrees) const;
    void Finish(CZvDisplayItem& item, const ItemRule& rule, const Row& row) const;

    const MapFrame& m_frame;
    CZvDisplayItemPara* m_para;
    int& m_lost;
};

} // namespace zv::host
