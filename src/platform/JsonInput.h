#pragma once

#include <cstddef>
#include <initializer_list>
#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Error.h"

/// Reading JSON that came from outside, where every fault is told with its file, place and reason.
namespace zv {

/// One value of a document together with its place. Borrows the document, which must outlive it.
/// Every operation throws DataError when the value is not what is asked for.
class ZVDISP_API JsonNode {
  public:
    JsonNode(const nlohmann::json& value, std::string place, const std::string& file)
        : m_value(&value), m_place(std::move(place)), m_file(&file) {}

    /// JSON pointer from the document's root; empty for the root itself.
    const std::string& Place() const { return m_place; }
    /// The value as it was parsed.
    const nlohmann::json& Value() const { return *m_value; }

    /// Throws DataError at this place.
    [[noreturn]] void Fail(std::string reason) const;

    /// REQUIRES the value to be an object. Fails on a member that is not named here.
    void AllowOnly(std::initializer_list<std::string_view> names) const;
    JsonNode At(std::string_view name) const;
    std::optional<JsonNode> Find(std::string_view name) const;
    std::vector<std::pair<std::string, JsonNode>> Members() const;

    /// The elements of an array.
    std::vector<JsonNode> Items() const;

    /// A whole number from `min` to `max`.
    int Int(int min, int max) const;
    bool Bool() const;
    /// A finite number from `min` to `max`.
    double Number(double min, double max) const;
    /// A text of at most `maxBytes` bytes of UTF-8 without control characters.
    std::string Text(std::size_t maxBytes) const;
    /// A text that is not empty and holds ASCII letters, digits and `others` only.
    std::string Word(std::size_t maxBytes, std::string_view others = {}) const;

    /// What kind of value stands here.
    bool IsObject() const;
    bool IsArray() const;
    bool IsText() const;

    /// Members that may be absent.
    bool BoolOr(std::string_view name, bool fallback) const;

  private:
    std::string Child(std::string_view name) const;

    const nlohmann::json* m_value;
    std::string m_place;
    const std::string* m_file;
};

/// A parsed document. Refuses what is malformed, a member named twice in one object, nesting deeper
/// than 16 and text of more bytes than is allowed.
class ZVDISP_API JsonDocument {
  public:
    static constexpr std::size_t kUsualMaxBytes = std::size_t(4) << 20;

    /// `name` is the file name for errors. Throws DataError.
    JsonDocument(std::string_view text, std::string name, std::size_t maxBytes = kUsualMaxBytes);
    ~JsonDocument();

    /// Borrowed until the document goes.
    JsonNode Root() const;

  private:
    std::string m_name;
    std::unique_ptr<nlohmann::json> m_value;
};

} // namespace zv
