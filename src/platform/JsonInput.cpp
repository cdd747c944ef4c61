#include "platform/JsonInput.h"

#include <algorithm>
#include <limits>
#include <nlohmann/json.hpp>
#include <set>

#include "platform/Numbers.h"

namespace zv {
namespace {

using Json = nlohmann::json;

constexpr std::size_t kMaxDepth = 16;

/// A member name as one step of a JSON pointer.
std::string PointerStep(std::string_view name) {
    std::string step = "/";
    for (const char c : name) {
        if (c == '~')
            step += "~0";
        else if (c == '/')
            step += "~1";
        else
            step += c;
    }
    return step;
}

/// Follows the parser and refuses what the finished tree would no longer show.
class ParseGuard {
  public:
    explicit ParseGuard(const std::string& file) : m_file(file) {}

    bool operator()(Json::parse_event_t event, const Json& value) {
        switch (event) {
        case Json::parse_event_t::object_start:
        case Json::parse_event_t::array_start:
            Open(event == Json::parse_event_t::array_start);
            break;
        case Json::parse_event_t::key: Name(value.get_ref<const std::string&>()); break;
        case Json::parse_event_t::object_end:
        case Json::parse_event_t::array_end: m_open.pop_back(); [[fallthrough]];
        case Json::parse_event_t::value: Step(); break;
        }
        return true;
    }

  private:
    struct Level {
        bool array = false;
        std::size_t index = 0;
        std::string name;
        std::set<std::string, std::less<>> names;
    };

    void Open(bool array) {
        if (m_open.size() == kMaxDepth) throw DataError(m_file, Place(), "nested too deep");
        m_open.push_back({.array = array});
    }

    void Name(const std::string& name) {
        Level& level = m_open.back();
        level.name = name;
        if (!level.names.insert(name).second)
            throw DataError(m_file, Place(), "member stands twice");
    }

    void Step() {
        if (!m_open.empty()) ++m_open.back().index;
    }

    std::string Place() const {
        std::string place;
        for (const Level& level : m_open)
            place += level.array ? "/" + std::to_string(level.index) : PointerStep(level.name);
        return place;
    }

    const std::string& m_file;
    std::vector<Level> m_open;
};

std::string LineAndColumn(std::string_view text, std::size_t byte) {
    const std::string_view before = text.substr(0, std::min(byte > 0 ? byte - 1 : 0, text.size()));
    const auto line = std::count(before.begin(), before.end(), '\n') + 1;
    const std::size_t lineEnd = before.rfind('\n');
    const std::size_t column =
        lineEnd == std::string_view::npos ? before.size() + 1 : before.size() - lineEnd;
    return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

/// The parser's own words behind its bracketed code and position.
std::string ReasonOf(const Json::exception& fault) {
    const std::string_view text = fault.what();
    for (const std::string_view lead : {"syntax error while ", "syntax error "}) {
        const std::size_t at = text.find(lead);
        if (at != std::string_view::npos) return std::string(text.substr(at));
    }
    const std::size_t bracket = text.find("] ");
    return std::string(bracket == std::string_view::npos ? text : text.substr(bracket + 2));
}

bool IsLetterOrDigit(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

std::string AllowedText(std::string_view others) {
    std::string text = "letters and digits";
    if (!others.empty()) text += " and \"" + std::string(others) + "\"";
    return text + " only";
}

Json Parse(std::string_view text, const std::string& name, std::size_t maxBytes) {
    if (text.size() > maxBytes)
        throw DataError(name, "", "longer than " + std::to_string(maxBytes) + " bytes");
    ParseGuard guard(name);
    try {
        return Json::parse(text, [&guard](int, Json::parse_event_t event, Json& value) {
            return guard(event, value);
        });
    } catch (const Json::parse_error& fault) {
        throw DataError(name, LineAndColumn(text, fault.byte), ReasonOf(fault));
    } catch (const Json::exception& fault) {
        throw DataError(name, "", ReasonOf(fault));
    }
}

} // namespace

void JsonNode::Fail(std::string reason) const {
    throw DataError(*m_file, m_place, std::move(reason));
}

std::string JsonNode::Child(std::string_view name) const {
    return m_place + PointerStep(name);
}

void JsonNode::AllowOnly(std::initializer_list<std::string_view> names) const {
    for (const auto& [name, node] : Members())
        if (std::find(names.begin(), names.end(), name) == names.end())
            node.Fail("there is no such member here");
}

std::optional<JsonNode> JsonNode::Find(std::string_view name) const {
    if (!m_value->is_object()) Fail("must be an object");
    const auto found = m_value->find(std::string(name));
    if (found == m_value->end()) return std::nullopt;
    return JsonNode(*found, Child(name), *m_file);
}

JsonNode JsonNode::At(std::string_view name) const {
    if (std::optional<JsonNode> found = Find(name)) return *found;
    Fail("lacks the member \"" + std::string(name) + "\"");
}

std::vector<std::pair<std::string, JsonNode>> JsonNode::Members() const {
    if (!m_value->is_object()) Fail("must be an object");
    std::vector<std::pair<std::string, JsonNode>> members;
    for (auto at = m_value->begin(); at != m_value->end(); ++at)
        members.emplace_back(at.key(), JsonNode(at.value(), Child(at.key()), *m_file));
    return members;
}

std::vector<JsonNode> JsonNode::Items() const {
    if (!m_value->is_array()) Fail("must be an array");
    std::vector<JsonNode> items;
    items.reserve(m_value->size());
    for (const Json& value : *m_value)
        items.emplace_back(value, m_place + "/" + std::to_string(items.size()), *m_file);
    return items;
}

int JsonNode::Int(int min, int max) const {
    if (!m_value->is_number_integer()) Fail("must be a whole number");
    const bool huge =
        m_value->is_number_unsigned() &&
        m_value->get<std::uint64_t>() > std::uint64_t(std::numeric_limits<std::int64_t>::max());
    const std::int64_t value = huge ? 0 : m_value->get<std::int64_t>();
    if (huge || value < min || value > max)
        Fail("must be from " + std::to_string(min) + " to " + std::to_string(max));
    return int(value);
}

bool JsonNode::Bool() const {
    if (!m_value->is_boolean()) Fail("must be true or false");
    return m_value->get<bool>();
}

double JsonNode::Number(double min, double max) const {
    if (!m_value->is_number()) Fail("must be a number");
    const double value = m_value->get<double>();
    if (!(value >= min && value <= max))
        Fail("must be from " + FormatShortest(min) + " to " + FormatShortest(max));
    return value;
}

bool JsonNode::IsObject() const {
    return m_value->is_object();
}

bool JsonNode::IsArray() const {
    return m_value->is_array();
}

bool JsonNode::IsText() const {
    return m_value->is_string();
}

std::string JsonNode::Text(std::size_t maxBytes) const {
    if (!m_value->is_string()) Fail("must be a text");
    const std::string& text = m_value->get_ref<const std::string&>();
    if (text.size() > maxBytes) Fail("is longer than " + std::to_string(maxBytes) + " bytes");
    const auto isControl = [](unsigned char c) { return c < 32 || c == 127; };
    if (std::any_of(text.begin(), text.end(), isControl)) Fail("holds a control character");
    return text;
}

std::string JsonNode::Word(std::size_t maxBytes, std::string_view others) const {
    std::string word = Text(maxBytes);
    if (word.empty()) Fail("is empty");
    const auto fits = [others](char c) {
        return IsLetterOrDigit(c) || others.find(c) != std::string_view::npos;
    };
    if (!std::all_of(word.begin(), word.end(), fits)) Fail("may hold " + AllowedText(others));
    return word;
}

bool JsonNode::BoolOr(std::string_view name, bool fallback) const {
    const std::optional<JsonNode> node = Find(name);
    return node ? node->Bool() : fallback;
}

JsonDocument::JsonDocument(std::string_view text, std::string name, std::size_t maxBytes)
    : m_name(std::move(name)),
      m_value(std::make_unique<nlohmann::json>(Parse(text, m_name, maxBytes))) {}

JsonDocument::~JsonDocument() = default;

JsonNode JsonDocument::Root() const {
    return {*m_value, "", m_name};
}

} // namespace zv
