#include "platform/Error.h"

#include <utility>

namespace zv {

std::string Error::Text() const {
    std::string text;
    for (const std::string* piece : {&file, &place, &reason}) {
        if (piece->empty()) continue;
        if (!text.empty()) text += ": ";
        text += *piece;
    }
    return text;
}

DataError::DataError(Error error) : std::runtime_error(error.Text()), m_error(std::move(error)) {}

DataError::DataError(std::string file, std::string place, std::string reason)
    : DataError(Error{std::move(file), std::move(place), std::move(reason)}) {}

DataError::DataError(const DataError&) = default;

DataError::~DataError() = default;

} // namespace zv
