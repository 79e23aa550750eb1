#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "host/services/IFiles.h"
#include "host/values/Amount.h"
#include "host/values/Date.h"
#include "host/values/Variant.h"

namespace quillon {

class Form;
class GridModel;

/// What Modal dialogs ask with: the style argument of a message about a field's value.
inline constexpr int kFieldMessage = 4;

/// Standard routines.
class IStd {
 public:
  IStd() = default;
  IStd(const IStd&) = delete;
  IStd& operator=(const IStd&) = delete;
  virtual ~IStd() = default;

  /// `buttons`: empty for OK alone, "2" for Yes and No. `icon`: "Q", "W", "I", "E" or empty. `defaultButton`:
  /// 0 the first, 2 the second. Returns the button pressed, counted from 1; closing the box is the last
  /// button.
  virtual int MsgBox(const std::string& text, const std::string& buttons = "", const std::string& icon = "",
                     const std::string& title = "", int defaultButton = 0, int style = 0) = 0;

  static constexpr int kNo = 2;  ///< of AskYesNo: No is the default

  /// A question with Yes and No; true for Yes. Leaving the box is No.
  bool AskYesNo(const std::string& text, const std::string& icon = "Q", int defaultButton = 0,
                const std::string& title = "") {
    return MsgBox(text, "2", icon, title, defaultButton) == 1;
  }

  /// Queues keys, "{TAB}" and the like; they arrive after the event at hand, or at the next DoEvents.
  virtual void SendKeys(const std::string& keys) = 0;

  /// An amount as shown: separators are passed over; a text without a number gives 0.
  virtual Amount ParseAmount(std::string_view text) = 0;

  /// Halves away from zero; `decimals` as text, "0" to "4".
  virtual Amount RoundAmount(Amount amount, const std::string& decimals) = 0;

  /// Format keys: "c" groups the Indian way, "n" does not, the digit is the decimals. A small letter shows
  /// zero as an empty text, a capital shows it.
  virtual std::string FormatValue(const Variant& value, const std::string& key) = 0;
  virtual std::string FormatAmount(Amount amount, const std::string& key) = 0;

  /// Two to four decimals.
  virtual std::string FormatRate(Amount rate) = 0;

  /// Style "A": lakh and crore in capitalised words.
  virtual std::string AmountInWords(Amount amount, const std::string& style) = 0;

  /// Expands a date typed short to "dd-MMM-yyyy"; what is missing comes from the reference text, else from
  /// the open year. Empty when it is no date.
  virtual std::string ParseDateText(const std::string& text, const std::string& reference) = 0;

  /// One date literal, or the pair that follows "between"; empty for an empty date.
  virtual std::string SqlDate(Date date) = 0;
  virtual std::string SqlDate(Date first, Date second) = 0;

  /// The text in quotes, its quotes doubled.
  virtual std::string SqlString(const std::string& text) = 0;

  virtual void SetupGrid(GridModel& grid) = 0;

  /// A width up to 1 is a share of the grid's width, above it twips. Alignment: 1 left, 4 centre, 7 right; -1
  /// leaves the column's own.
  virtual void SetGridColumn(GridModel& grid, int column, const std::string& title, double width,
                             int alignment, int headingAlignment = -1) = 0;
  virtual void SetRowColors(GridModel& grid, int row, int firstColumn, int lastColumn, long backColor,
                            long foreColor) = 0;

  /// The next free row: adds 1 to `row`, growing the grid when it is full.
  virtual void NextGridRow(int& row, GridModel& grid) = 0;

  /// Shows a form modally.
  virtual void ShowDialog(const std::shared_ptr<Form>& form, const std::shared_ptr<Form>& owner) = 0;

  /// Upper case, letters and digits only.
  virtual std::string PressHead(const std::string& text) = 0;

  /// Blanks folded, words of all capitals capitalised.
  virtual std::string TidyName(const std::string& text) = 0;

  /// Takes a cheque number out of the narration when `chequeNo` is empty.
  virtual void ChqNoFromNarration(std::string& narration, std::string& chequeNo) = 0;

  /// Line `line`, counted from 1, of the text wrapped at words to `width` characters.
  virtual std::string WrapLine(const std::string& text, int width, int line) = 0;

  virtual void AddTo(std::int64_t& counter, std::int64_t step) = 0;
  virtual IFiles& Files() = 0;
  virtual void ShowHelp(int context) = 0;
};

extern IStd* gStd;

}  // namespace quillon
