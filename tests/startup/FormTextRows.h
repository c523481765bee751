#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <span>

#include "startup/FormTexts.h"

namespace tarvik::support {

// Expects a window's table of texts to contain exactly these rows, in any order.
inline void ExpectRows(std::span<const FormText> table, std::initializer_list<FormText> expected) {
  EXPECT_EQ(table.size(), expected.size());
  for (const FormText& row : expected) {
    const auto found = std::ranges::find(table, row.id, &FormText::id);
    if (found == table.end()) {
      ADD_FAILURE() << "no texts for " << row.id;
      continue;
    }
    EXPECT_EQ(found->text.eng, row.text.eng) << row.id;
    EXPECT_EQ(found->text.chs, row.text.chs) << row.id;
    EXPECT_EQ(found->text.cht, row.text.cht) << row.id;
  }
}

}  // namespace tarvik::support
