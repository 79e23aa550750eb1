#pragma once

#include <string>

#include "host/data/CNameValues.h"

namespace quillon {

/// How labels are laid out: the values of the setup by their names. What cannot be used counts as its limit
/// or its default.
class LabelConfig {
 public:
  static constexpr int kMostColumns = 6;
  static constexpr int kMostCopies = 100;

  /// The defaults of a text-mode printer or of a graphic one.
  static CNameValues Defaults(bool isTextMode);

  /// The stored text: the values with commas between them, without the Aadhaar number's, which lasts only as
  /// long as the sheet.
  static std::string Stored(const CNameValues& values);
  static void Read(const std::string& stored, CNameValues& values);

  LabelConfig(const CNameValues& values, bool isTextMode) : values_(values), isTextMode_(isTextMode) {}

  double Height() const;     ///< inches
  double TopMargin() const;  ///< twips
  int Columns() const;
  long ColumnGap() const;  ///< twips
  int Copies() const;
  bool Prints(const std::string& name) const { return values_.Item(name) == "Y"; }

 private:
  const CNameValues& values_;
  bool isTextMode_;
};

}  // namespace quillon
