#pragma once

#include "host/controls/GridModel.h"

namespace quillon {

/// The plain grid of many screens. Its Clear empties the titles too.
class MSHFlexGrid : public GridModel {
 public:
  using GridModel::GridModel;

  const char* Kind() const override { return "MSHFlexGrid"; }

  void Clear() override;
};

}  // namespace quillon
