#pragma once

#include <string>
#include <vector>

#include "entry/AmountRange.h"
#include "host/controls/CTextPlus.h"
#include "host/controls/CommandButton.h"
#include "host/controls/Frame.h"
#include "host/controls/ListBox.h"
#include "host/controls/OptionButton.h"
#include "host/forms/DialogForm.h"

namespace quillon {

/// What the two filters of a statement of account ask alike: the side of the entries, their books, ranges of
/// amounts, a part of the narration.
class StatementFilter : public DialogForm {
 public:
  /// What was chosen, in words.
  std::string FilterTxt;

  /// Debits from and to, credits from and to; zero is no limit.
  Amount Amt1;
  Amount Amt2;
  Amount Amt3;
  Amount Amt4;

  Frame Frame1;
  ControlArray<OptionButton> Option1;
  Frame Frame2;
  ListBox List2;
  CommandButton cmdCheck;
  CommandButton cmdUnCheck;
  Frame Frame3;
  Frame Frame4;
  ControlArray<CTextPlus> txp1;

 protected:
  enum class Side { kDebits, kCredits, kBoth };

  static constexpr long kEdge = 150;
  static constexpr long kLine = 360;
  static constexpr int kNarrationField = 4;

  /// The controls begin `top` twips below the dialog's upper edge.
  StatementFilter(const char* className, bool keepsLoaded, long top);

  void OnActivate() override;

  /// The field that the user begins in.
  virtual Control& FirstField();

  /// The books of all entries, ticked.
  void FillBooks();

  Side ChosenSide();
  bool AreAllBooksTicked() const { return List2.SelCount() == List2.ListCount(); }

  /// The amounts and the narration as they were typed.
  void TakeAmounts();
  std::string Narration() { return txp1(kNarrationField).Text(); }
  AmountRange Debits() const { return {Amt1, Amt2}; }
  AmountRange Credits() const { return {Amt3, Amt4}; }

  /// Joins a part to the words; an empty one adds nothing.
  void AddWords(const std::string& words);
  void AddSideWords();
  void AddBookWords();
  void AddNarrationWords();
  void AddAmountWords();

 private:
  void DesignControls(long top);
  void PlaceSideAndBooks(long top, long height);
  void PlaceAmounts(long top);

  /// Shows the fields of a side, or hides and empties them.
  void ShowRange(int first, bool shown);
};

}  // namespace quillon
