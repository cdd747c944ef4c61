#include "platform/zvcom/ZvUvException.h"

#include <utility>

CZvUvException::CZvUvException(int kind, std::string message, std::string source, int line)
    : m_kind(kind), m_message(std::move(message)), m_source(std::move(source)), m_line(line) {}

CZvUvException::~CZvUvException() = default;
