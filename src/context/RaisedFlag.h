#pragma once

namespace zv {

/// Raises a flag for as long as it lives, and then leaves it as it was.
class RaisedFlag {
  public:
    explicit RaisedFlag(bool& flag) : m_flag(flag), m_former(flag) { m_flag = true; }
    ~RaisedFlag() { m_flag = m_former; }
    RaisedFlag(const RaisedFlag&) = delete;
    RaisedFlag& operator=(const RaisedFlag&) = delete;

  private:
    bool& m_flag;
    bool m_former;
};

} // namespace zv
