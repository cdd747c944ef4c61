#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace zv::test {

/// A fresh folder that goes, with all that is in it, at the end of its scope.
class TempFolder {
  public:
    TempFolder() {
        std::string name = std::filesystem::temp_directory_path() / "zvdisp-test-XXXXXX";
        m_path = mkdtemp(name.data());
    }
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& Path() const { return m_path; }
    std::string operator/(const std::string& name) const { return m_path / name; }
    std::size_t CountEntries() const {
        return static_cast<std::size_t>(
            std::distance(std::filesystem::directory_iterator(m_path), {}));
    }

  private:
    std::filesystem::path m_path;
};

inline void WriteText(const std::filesystem::path& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
}

inline std::string ReadText(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// Sets an environment variable (null: unsets it) until the end of the scope.
class ScopedEnvironment {
  public:
    ScopedEnvironment(const char* name, const char* value) : m_name(name) {
        if (const char* before = std::getenv(name)) {
            m_before = before;
            m_wasSet = true;
        }
        Set(value);
    }
    ~ScopedEnvironment() { Set(m_wasSet ? m_before.c_str() : nullptr); }
    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

  private:
    void Set(const char* value) const {
        if (value) {
            setenv(m_name, value, 1);
        } else {
            unsetenv(m_name);
        }
    }

    const char* m_name;
    std::string m_before;
    bool m_wasSet = false;
};

} // namespace zv::test
