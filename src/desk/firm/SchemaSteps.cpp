#include "desk/firm/SchemaSteps.h"

#include <algorithm>

namespace quillon {

const std::vector<SchemaStep>& AllSchemaSteps() {
  static const std::vector<SchemaStep> steps = SchemaSteps();
  return steps;
}

int VersionAfter(const std::vector<SchemaStep>& steps) {
  int version = 1;
  for (const SchemaStep& step : steps) version = std::max(version, step.From + 1);
  return version;
}

}  // namespace quillon
