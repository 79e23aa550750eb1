#pragma once

#include <memory>
#include <string>

#include "host/forms/Form.h"
#include "host/services/FinYear.h"
#include "host/values/Date.h"

namespace quillon {

class frmAccount;

/// The graphs of an account's entries, opened on its statement: what their queries ask and how the years are
/// called.
class AccountGraph {
 public:
  explicit AccountGraph(frmAccount& statement) : statement_(statement) {}

  /// The amount of each day, beside the same period of the year before and after where they have an account
  /// of the same head and station. What normally stands in credit is turned round.
  void ShowAmounts();

  /// The debits of each day and its credits, as two measures.
  void ShowDebitsAndCredits();

 private:
  FormPtr Open() const;
  void Show(const FormPtr& graph) const;
  void AddYear(Form& graph, int years, const char* yearMember, const char* queryMember) const;
  void NameYears(Form& graph) const;
  bool StandsInCredit() const;

  frmAccount& statement_;
};

}  // namespace quillon
