#pragma once

#include "reconciliation/ContraEntries.h"
#include "reconciliation/InterestOfRow.h"
#include "reconciliation/WorkbenchView.h"

namespace quillon {

struct DayProduct;

/// The day products of the account and the interest on them: on the pass book as the bank sees it, or on the
/// account as it stands in the books.
class InterestView : public WorkbenchView {
 public:
  InterestView(WorkbenchAccount& account, CGridPlus& grid);

  /// What interest is worked out on; nothing lets go of it. The bank's side of a balance has the other sign.
  void SetSource(CGridPlus* source, bool isBanks);
  CGridPlus* Source() const { return source_; }

  /// The length of the interest year and the decimals, which are the firm's choice.
  void ReadTerms();

  /// The contra check and the dialog of rate and method; true when the table is to be worked out. The screen
  /// may have been closed meanwhile.
  bool Ask();

  /// Works out the table on a source.
  void Update(const CGridPlus& source);

  /// Interest of one row of the table.
  Amount CalcInterest(Amount product) const { return InterestOfRow(product, terms_); }

  /// Takes the alert window off the screen.
  void LetGo();

 private:
  struct Sums;

  bool AskTerms();
  std::string Title() const;
  void SetColumns();
  void Fill(const CGridPlus& source);
  void AddRow(const DayProduct& group, int row, Sums& sums);
  void ShowSums(const Sums& sums);
  std::string InterestText(Amount interest, char letter) const;

  CGridPlus* source_ = nullptr;
  InterestTerms terms_;
  ContraEntries contra_;
};

}  // namespace quillon
