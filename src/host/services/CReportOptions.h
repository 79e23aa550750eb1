#pragma once

#include <map>
#include <string>

#include "host/data/CDataSet.h"
#include "host/values/Variant.h"

namespace quillon {

/// The options of one report, as a screen sets them. Names ignore case; columns count from 1.
class CReportOptions {
 public:
  /// What a report is laid out with beyond its named options.
  struct SettingsRecord {
    bool ChkUnderline = false;  ///< cells marked underlined in the grid print underlined
    double LineHeight = 0;      ///< twips; 0 is the height of the text
    double LineTopMargin = 0;   ///< above the text of a line: inches up to 20, a larger value is twips
  };

  SettingsRecord Settings;

  /// The master record that the heading forms print fields of; may stay closed.
  CDataSet DataRS;

  void SetOption(const std::string& name, const Variant& value);
  void SetColumnOption(int column, const std::string& name, const std::string& value);
  void SetVar(const std::string& name, const std::string& value);

  /// Empty when never set.
  Variant Option(const std::string& name) const;
  std::string ColumnOption(int column, const std::string& name) const;
  std::string Var(const std::string& name) const;

  /// Adds the options of a text "Name=Value,Name=Value"; a comma splits only where "Name=" follows, so a
  /// value may hold commas. ":=" counts as "=".
  void AddOptionText(const std::string& text);

 private:
  std::map<std::string, Variant> options_;
  std::map<std::pair<int, std::string>, std::string> columnOptions_;
  std::map<std::string, std::string> variables_;
};

}  // namespace quillon
