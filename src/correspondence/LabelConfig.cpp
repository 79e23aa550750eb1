#include "correspondence/LabelConfig.h"

#include <algorithm>
#include <vector>

#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr const char* kStored[] = {"Height", "TopMargin",  "Columns",    "ColumnGap",
                                   "Copies", "PrintPhone", "PrintMobile"};
constexpr long long kWidestGap = 10'000;

}  // namespace

CNameValues LabelConfig::Defaults(bool isTextMode) {
  CNameValues values;
  values.SetItem("Height", isTextMode ? "1.5" : "1.88");
  values.SetItem("TopMargin", isTextMode ? "200" : "300");
  values.SetItem("Columns", "2");
  values.SetItem("ColumnGap", isTextMode ? "250" : "1500");
  values.SetItem("Copies", "1");
  values.SetItem("PrintPhone", "N");
  return values;
}

std::string LabelConfig::Stored(const CNameValues& values) {
  std::vector<std::string> parts;
  for (const char* name : kStored) parts.push_back(values.Item(name));
  return text::Join(parts, ",");
}

void LabelConfig::Read(const std::string& stored, CNameValues& values) {
  if (stored.empty()) return;
  const std::vector<std::string> parts = text::Split(stored, ",");
  for (std::size_t i = 0; i < std::min(parts.size(), std::size(kStored)); ++i) {
    values.SetItem(kStored[i], parts[i]);
  }
}

double LabelConfig::Height() const {
  const double height = Val(values_.Item("Height"));
  return height > 0 ? height : Val(Defaults(isTextMode_).Item("Height"));
}

double LabelConfig::TopMargin() const { return Val(values_.Item("TopMargin")); }

int LabelConfig::Columns() const {
  return static_cast<int>(std::clamp<long long>(ValInteger(values_.Item("Columns")), 1, kMostColumns));
}

long LabelConfig::ColumnGap() const {
  return static_cast<long>(std::clamp<long long>(ValInteger(values_.Item("ColumnGap")), 0, kWidestGap));
}

int LabelConfig::Copies() const {
  return static_cast<int>(std::clamp<long long>(ValInteger(values_.Item("Copies")), 1, kMostCopies));
}

}  // namespace quillon
