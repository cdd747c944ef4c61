#pragma once

#include "clip/ZvDispClipper.h"

/// The clipper that a map holds and hands to items as they are added.
class ZVDISP_API CZvDispMapClipper : public CZvDispClipper {
  public:
    CZvDispMapClipper() = default;
    ~CZvDispMapClipper() override;
};
