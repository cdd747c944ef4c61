#pragma once

#include <string>

#include "platform/Export.h"

/// The two root folders of an installation, named by a path and a key as in a registry.
///
/// Where a value comes from, first match first: S_Override (tests and hosts), the environment
/// (ZVDISP_HOME, ZVDISP_WORK), the user's registry.json, the built-in default (home: the shared
/// data folder; work: $XDG_DATA_HOME/zvdisp or $HOME/.local/share/zvdisp).
/// The user's registry.json stands in zv::UserConfigFolder() and reads
/// {"Software\\ZvDisp\\User": {"Work": "/home/me/maps"}}; one that cannot be read is told in the
/// log and counts as empty. Values use "\" as separator only where the caller adds one: a root
/// itself is a native path.
class ZVDISP_API CZvUtRegistry {
  public:
    static std::string S_GetHomePath();
    static std::string S_GetHomeKey();
    static std::string S_GetWorkPath();
    static std::string S_GetWorkKey();

    /// The value under path and key; empty when there is none. `create` makes the work folder when
    /// it is missing.
    static std::string GetRegistry(const std::string& path, const std::string& key, bool create);

    /// Sets a value for this process; an empty one takes the override back.
    static void S_Override(const std::string& path, const std::string& key,
                           const std::string& value);

    /// Grows with every S_Override: whoever caches what stems from the registry compares it.
    static unsigned S_GetGeneration();
};
