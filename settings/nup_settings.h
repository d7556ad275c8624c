// The options of printing several pages on one.
#pragma once

#include "settings/settings_record.h"

#include <cstdint>
#include <string>

namespace qz {

/// Members are named after their keys, without the section; keys without member are in the document only.
class zrNUpSettings final : public zrSettings {
  public:
    zrNUpSettings();

    bool keepOriginal = false;
    std::int32_t width = 0;   // twips
    std::int32_t length = 0;  // twips
    std::int32_t orientation = 0;
    std::int32_t rows = 0;
    std::int32_t columns = 0;
    bool drawBorders = false;
    bool columnsFirst = false;
    bool rightToLeft = false;
    bool drawPerforationLines = false;
    bool skipPageContent = false;
    std::int32_t innerGap = 0;  // twips
    std::int32_t scale = 0;
    std::int32_t scaleCustomValue = 0;  // per cent
};

}  // namespace qz
