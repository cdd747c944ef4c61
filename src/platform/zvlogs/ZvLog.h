#pragma once

#include <functional>
#include <string>

#include "platform/Export.h"

/// The single log sink. Levels: 101 prompts, warnings and item faults; 103 notes of keys, failures
/// and information; 104 progress.
class ZVDISP_API CZvLog {
  public:
    static void Output(const std::string& text, int level, bool flag);

    using Listener = std::function<void(const std::string& text, int level, bool flag)>;
    /// Attaches a listener (status bar, tests) and gives its number; it hears every line until
    /// S_RemoveListener.
    static int S_AddListener(Listener listener);
    static void S_RemoveListener(int number);

    /// Shows the lines of level 101 on the console (standard error) or keeps it quiet, as it is at
    /// first.
    static void S_SetConsole(bool on);
    /// Writes every line to a rotating file too (5 MB, 3 files); an empty path ends that.
    /// Throws zv::DataError when the file cannot be opened, and then writes where it wrote before.
    static void S_SetFile(const std::string& path);
};
