#pragma once

#include <initializer_list>

#include "tests/support/DeskFixture.h"

namespace quillon {

/// Books on which the screens do their work: vouchers of many lines, documents, triggers that make a
/// statement fail.
class BulkTest : public DeskTest {
 protected:
  void SetUp() override;

  struct Line {
    int account;
    const char* amount;
    int other = 0;
    bool locked = false;
  };
  void Enter(int voucher, const std::string& day, const std::string& book, const std::string& type,
             std::initializer_list<Line> lines, CDbLink* year = nullptr);
  void AddDocument(int voucher, int party, const std::string& series, bool locked = false);

  /// From now on the engine refuses to change these rows of FAData: "before delete", "old.VoucherID=3".
  void Refuse(const std::string& when, const std::string& rows, CDbLink* year = nullptr);

  /// The rows of a query, their fields joined by bars.
  static Texts Rows(const std::string& query, CDbLink& db = gSession->MainDb());

  /// What each account comes to, by the test's own reckoning.
  static Texts Balances(CDbLink& db = gSession->MainDb());

  /// Picks a line of the statement's "Others" and does in the dialog that comes up what a person does.
  void Open(const std::string& tool, int account, const Acts& acts);
  void Type(const std::string& field, const std::string& text);
  void PressOk();

  FormPtr statement_;
  FormPtr dialog_;
};

}  // namespace quillon
