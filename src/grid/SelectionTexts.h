#pragma once

#include "startup/Language.h"

// The texts of the selection. "%1" stands for a value (see Compose).
namespace tarvik::selectionTexts {

// Label after an entry was chosen: its number. Unlike the text after a search it has a blank before "NO.".
inline constexpr Text entrySelected{"Icon No %1 Selected.", "选中 NO.%1 图标.", "選中 NO.%1 圖示."};

}  // namespace tarvik::selectionTexts
