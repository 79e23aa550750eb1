#include "desk/firm/SchemaSteps.h"

#include <algorithm>

namespace quillon {

int VersionAfter(const std::vector<SchemaStep>& steps) {
  int version = 1;
  for (const SchemaStep& step : steps) version = std::max(version, step.From + 1);
  return version;
}

}  // namespace quillon
