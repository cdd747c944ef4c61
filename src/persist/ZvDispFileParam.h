#pragma once

#include <iosfwd>

#include "platform/Export.h"

/// What passes through every record transfer: the streams, and where the item belongs. Streams are
/// borrowed and opened binary; line ends are translated by the record reader and writer.
class ZVDISP_API CZvDispFileParam {
  public:
    virtual ~CZvDispFileParam() = default;

    /// Whether the record belongs to a symbol definition, not to a map.
    void SetSymbol(bool on) { m_symbol = on; }
    bool IsSymbol() const { return m_symbol; }
    void SetCulture(int culture) { m_culture = culture; }
    int GetCulture() const { return m_culture; }
    void SetUsetNum(int uset) { m_uset = uset; }
    int GetUsetNum() const { return m_uset; }
    void SetPostNum(int post) { m_post = post; }
    int GetPostNum() const { return m_post; }
    void SetLayerNum(int layer) { m_layer = layer; }
    int GetLayerNum() const { return m_layer; }
    void SetSymbolNum(int number) { m_symbolNumber = number; }
    int GetSymbolNum() const { return m_symbolNumber; }
    void SetInFile(std::istream* in) { m_in = in; }
    std::istream* GetInFile() const { return m_in; }
    void SetOutFile(std::ostream* out) { m_out = out; }
    std::ostream* GetOutFile() const { return m_out; }

  private:
    bool m_symbol = false;
    int m_culture = 0;
    int m_uset = 0;
    int m_post = 0;
    int m_layer = 0;
    int m_symbolNumber = 0;
    std::istream* m_in = nullptr;
    std::ostream* m_out = nullptr;
};
