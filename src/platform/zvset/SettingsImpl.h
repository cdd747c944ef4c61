#pragma once

#include "platform/zvset/SettingsTree.h"
#include "platform/zvset/ZvSettings.h"

/// What a layer's settings hold; its texts are UTF-8, those of the interface single-byte.
struct CZvSettings::Impl {
    zv::SettingsTree tree;
};
