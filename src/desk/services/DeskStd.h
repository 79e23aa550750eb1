#pragma once

#include <string>

#include "desk/services/DateText.h"
#include "host/services/IStd.h"

namespace quillon {

/// gStd: the standard routines, put together from the functions of this folder.
class DeskStd : public IStd {
 public:
  DeskStd() { gStd = this; }
  ~DeskStd() override { gStd = nullptr; }

  int MsgBox(const std::string& text, const std::string& buttons, const std::string& icon,
             const std::string& title, int defaultButton, int style) override;
  void SendKeys(const std::string& keys) override;
  Amount ParseAmount(std::string_view text) override;
  Amount RoundAmount(Amount amount, const std::string& decimals) override;
  std::string FormatValue(const Variant& value, const std::string& key) override;
  std::string FormatAmount(Amount amount, const std::string& key) override;
  std::string FormatRate(Amount rate) override;
  std::string AmountInWords(Amount amount, const std::string& style) override;
  std::string ParseDateText(const std::string& text, const std::string& reference) override;
  std::string SqlDate(Date date) override;
  std::string SqlDate(Date first, Date second) override;
  std::string SqlString(const std::string& text) override;
  void SetupGrid(GridModel& grid) override;
  void SetGridColumn(GridModel& grid, int column, const std::string& title, double width, int alignment,
                     int headingAlignment) override;
  void SetRowColors(GridModel& grid, int row, int firstColumn, int lastColumn, long backColor,
                    long foreColor) override;
  void NextGridRow(int& row, GridModel& grid) override;
  void ShowDialog(const std::shared_ptr<Form>& form, const std::shared_ptr<Form>& owner) override;
  std::string PressHead(const std::string& text) override;
  std::string TidyName(const std::string& text) override;
  void ChqNoFromNarration(std::string& narration, std::string& chequeNo) override;
  std::string WrapLine(const std::string& text, int width, int line) override;
  void AddTo(std::int64_t& counter, std::int64_t step) override;
  IFiles& Files() override;
  void ShowHelp(int context) override;
};

/// The open year and today, from which a short date is completed.
DateFrame OpenDateFrame();

}  // namespace quillon
