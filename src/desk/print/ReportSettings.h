#pragma once

#include <string>
#include <vector>

#include "desk/print/ReportFirm.h"
#include "host/controls/GridModel.h"
#include "host/services/CReportOptions.h"
#include "host/values/Date.h"

namespace quillon {

/// A report as it was asked for.
struct ReportRequest {
  const GridModel& Grid;
  const CReportOptions& Options;
  std::string Title;
  std::string Subtitle;
  std::string Heading;  ///< a line under the subtitle
  int Ruling = -1;      ///< 1 rules each row, 2 each column, 3 both; below that neither
  ReportFirm Firm;
  Date PrintedOn;
};

/// The heading at the top of a page.
enum class HeadingForm {
  None,
  Account,         ///< "AcMain1": the firm with its address, titles
  AccountShort,    ///< "AcMain2": all in one line
  Letter,          ///< "LetterHead": the firm's letter head, reference and date
  LetterReference  ///< "LetterHeadRefDate": reference and date below a head that the paper has
};

/// What the options of a report mean, with the desk's own choice for those that were not set.
struct ReportSettings {
  explicit ReportSettings(const ReportRequest& request);

  HeadingForm FirstForm = HeadingForm::Account;
  HeadingForm NextForm = HeadingForm::AccountShort;
  bool FirstAccount = false;            ///< "AcSubHead1": the account on the first page
  bool NextAccount = false;             ///< "AcSubHead2": the account on the next pages
  std::vector<std::string> TitleLines;  ///< title, subtitle and what stands below; none is empty

  bool ColumnTitles = true;
  bool TopLine = true;     ///< above the column titles
  bool TitleLine = true;   ///< below them
  bool BottomLine = true;  ///< below the last row of a page
  bool RowRules = false;
  bool ColumnRules = false;
  bool Bare = false;  ///< rulings switched off: labels and letters, which take no colour either
  std::string RuleCharacter = "-";

  double BottomMargin = 0;  ///< twips; below 0 the desk's own
  bool CarryForward = false;
  std::size_t BalanceColumn = 0;  ///< of the shown columns, from 1; 0 is none

  double LineHeight = 0;     ///< twips a row has at least
  double LineTopMargin = 0;  ///< twips
  bool Underline = false;

  /// A sheet of labels: its columns are alike, and by what one is wider than another it keeps from its
  /// neighbour.
  bool IsLabels() const { return Bare && LineHeight > 0; }

  bool IsLetter() const {
    return FirstForm == HeadingForm::Letter || FirstForm == HeadingForm::LetterReference;
  }
};

}  // namespace quillon
