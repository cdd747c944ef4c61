#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "data/project/Project.h"
#include "platform/JsonInput.h"

/// The values that several parts of a project file share, each read with its place for errors.
namespace zv::host {

inline constexpr std::size_t kMaxText = 1000;
inline constexpr double kMaxInches = 1000.0;

std::string TextOr(const JsonNode& node, std::string_view name, std::string fallback);
int IntOr(const JsonNode& node, std::string_view name, int fallback, int min, int max);
double NumberOr(const JsonNode& node, std::string_view name, double fallback, double min,
                double max);

Template ReadTemplate(const JsonNode& node);
Template TemplateOr(const JsonNode& node, std::string_view name);

/// Index or name of a colour of the palette.
int ReadColour(const JsonNode& node);
int ColourOr(const JsonNode& node, std::string_view name, int fallback);
/// A colour, or {"by": template, "table": {key: colour}, "default": colour}.
ColourChoice ReadColourChoice(const JsonNode& node);
/// Number or name of a symbol.
SymbolRef ReadSymbol(const JsonNode& node);
/// A symbol, or the same object; without "table" the key is the symbol's name.
SymbolChoice ReadSymbolChoice(const JsonNode& node);

/// {"FIELD": "value", "FIELD": ["value", "value"]}.
Condition ReadCondition(const JsonNode& node);
/// ["x field", "y field"].
PositionFields ReadPosition(const JsonNode& node);
/// A composite culture is a text "3:7"; others are numbers.
ZVCulture ReadCulture(const JsonNode& node, bool compositeAllowed);
/// "layer", "post", "uset" and "culture" of an object.
Place ReadPlace(const JsonNode& node, bool compositeAllowed);

ItemRule ReadItemRule(const JsonNode& node);
Source ReadSource(const JsonNode& node);
Furniture ReadFurniture(const JsonNode& node);

} // namespace zv::host
