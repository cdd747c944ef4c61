#pragma once

#include <stdexcept>
#include <string>

#include "platform/Export.h"

namespace zv {

/// What is wrong with data that came from outside.
struct ZVDISP_API Error {
    std::string file;   ///< file, or another word for where the data came from
    std::string place;  ///< where in it (JSON pointer, "line 3, column 5"); empty: the whole of it
    std::string reason; ///< what is wrong there

    /// "file: place: reason" in one line; an empty piece is left out with its colon.
    std::string Text() const;
};

/// Raised by the readers of data files. what() is the error's text.
class ZVDISP_API DataError : public std::runtime_error {
  public:
    explicit DataError(Error error);
    DataError(std::string file, std::string place, std::string reason);
    DataError(const DataError&);
    ~DataError() override;

    const Error& GetError() const { return m_error; }

  private:
    Error m_error;
};

} // namespace zv
