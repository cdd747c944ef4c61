#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "data/project/Template.h"
#include "platform/zvcom/ZvTypes.h"

/// What a map project says, as plain values. The grammar of the file stands in
/// docs/project-file.md.
namespace zv::host {

/// Where items go in the map's tree.
struct Place {
    E_Layer layer = E_LAYER_CUSTOM;
    int post = 1;
    int uset = 1;
    ZVCulture culture = ZV_CULTURE_UNSET;
};

/// A value that the attributes of a row choose: the expanded key is looked up in the table.
template<class T>
struct Choice {
    std::optional<Template> by;
    std::map<std::string, T> table;
    T fallback{}; ///< where there is no key, or no row of the table for it
};

/// A symbol by number, or, where the name is not empty, by its name in the symbol map.
struct SymbolRef {
    int number = 68;
    std::string name;
};

struct SymbolChoice : Choice<SymbolRef> {
    bool byName = false; ///< without a table, the key itself is the symbol's name
};

using ColourChoice = Choice<int>;

/// A row passes when each field holds one of its values (blanks at both ends do not count).
struct Condition {
    std::map<std::string, std::vector<std::string>> allowed;
    bool Holds(const Row& row) const;
};

/// Fields that hold a position in the source's coordinates.
struct PositionFields {
    std::string x;
    std::string y;
};

enum class ItemKind { Line, Polygon, Symbol, Text, Circle, LineNumber };

/// Which point of a geometry a symbol, text or circle stands at.
enum class Anchor { Centre, First, Last };

/// How one feature becomes an item. Lengths are inches on paper.
struct ItemRule {
    std::string pointer; ///< its place in the project file, for errors
    ItemKind kind = ItemKind::Line;
    Place place;
    Condition where;
    Template id;
    Template label;
    ColourChoice colour{{}, {}, 0};
    std::optional<ColourChoice> fill; ///< of a symbol's areas, or of a circle
    std::optional<ColourChoice> textColour;
    int fillStyle = 0;
    int width = 0;
    int type = 0;
    SymbolChoice symbol;
    double size = 0.12;   ///< of a symbol; radius of a circle
    double height = 0.08; ///< of a text, or of a line number
    char horizontal = 'l';
    char vertical = 'a';
    std::array<double, 2> offset{0.0, 0.0};
    Template angle; ///< degrees, counter-clockwise
    Anchor at = Anchor::Centre;
    std::vector<PositionFields> path; ///< positions in place of the feature's geometry
    Template group;                   ///< rows with one key, in a row, are one line
    int every = 1;                    ///< acts on the first row and each n-th one behind it
    bool clear = false;               ///< a label that finds no room is made invisible
    int style = 1;                    ///< of a line number, 1 to 8
};

/// Attributes from another table, joined where the row's key is that table's.
struct Join {
    std::string file;
    std::string key; ///< field of that table
    Template on;     ///< key of this source's row
};

/// Where features come from.
struct Source {
    std::string pointer;
    std::string name;
    std::string file;
    std::string member;  ///< file inside the archive that `file` then is
    std::string layer;   ///< table of a source with several; empty: the first
    std::string drawing; ///< a drawing file, which brings items and their places itself
    std::string crs;     ///< in place of what the source says
    std::optional<PositionFields> position;
    std::string wkt; ///< field with the geometry
    bool sps = false;
    std::optional<std::array<double, 4>> coast; ///< the box to which lines of a coast were cut
    std::vector<Join> joins;
    Condition where;
    std::optional<std::array<double, 4>> box; ///< x1, y1, x2, y2 in the source's coordinates
    std::vector<ItemRule> items;
};

/// A style laid over what the sources gave.
struct Override {
    std::string pointer;
    Place place; ///< its culture may be composite
    std::optional<int> colour, type, width;
};

struct ViewStyle {
    int background = 8;
    int backgroundBrightness = 0;
    int fillBrightness = 3;
    std::string font = "stroke";
    std::array<int, 2> size{0, 0}; ///< pixels; 0: by the shape of the page
};

struct GridStyle {
    double step = 0.25; ///< degrees
    bool lines = true;
    int colour = 21;
    int textColour = 17;
    double height = 0.1;
};

struct LegendRow {
    enum class Kind { Symbol, Line, Area } kind = Kind::Symbol;
    std::string text;
    SymbolRef symbol;
    int colour = 17;
    std::optional<int> fill;
    int width = 0;
    int type = 0;
};

struct LegendStyle {
    int detail = 0; ///< number behind LEGEND_DETAIL in the group's ID
    std::string title;
    std::vector<LegendRow> rows;
};

struct Furniture {
    double margin = 0.7; ///< inches around the map's area
    double panel = 4.0;  ///< width of the panel to the right of the map; 0: none
    int paper = 96;
    int ink = 17;
    std::vector<std::string> title; ///< lines of the title block
    std::vector<std::string> projection;
    bool scaleBar = true;
    int north = 24; ///< symbol of the north arrow; 0: none
    std::optional<GridStyle> grid;
    std::vector<LegendStyle> legends;
};

struct Project {
    std::string title;
    std::string crs;                      ///< empty: a local grid
    std::string geographic = "EPSG:4326"; ///< of the latitudes and longitudes of bounds and grid
    std::optional<bool> feet;             ///< not given: as the projection counts
    int scale = 1; ///< feet in an inch on paper, or on a metre map the ratio 1:n
    std::array<double, 4> bounds{};
    bool boundsByLatLon = false; ///< latMin, lonMin, latMax, lonMax instead of x1, y1, x2, y2
    ViewStyle view;
    std::string settingsFile;
    std::string settingsText; ///< JSON of the settings
    std::vector<std::string> symbolFiles;
    std::vector<Source> sources;
    std::vector<Override> overrides;
    std::optional<Furniture> furniture;
};

/// Reads a project. `name` stands for the file in errors. Throws zv::DataError with the name, the
/// JSON pointer and the reason.
Project ParseProject(std::string_view text, const std::string& name);

/// The same from a file.
Project ReadProject(const std::string& path);

} // namespace zv::host
