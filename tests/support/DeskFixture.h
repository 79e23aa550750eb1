#pragma once

#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "desk/driver/DriverRuntime.h"
#include "desk/shell/Desk.h"
#include "host/controls/host_controls.h"
#include "tests/support/TempFolder.h"

namespace quillon {

/// A desk without a window on a firm of the test's own, played by the driver's runtime. A question that no
/// answer was laid for, an answer that nobody asked for and an error that the test did not take fail the
/// test.
class DeskTest : public testing::Test {
 protected:
  using Texts = std::vector<std::string>;
  using Acts = std::vector<std::function<void()>>;

  DeskTest();
  ~DeskTest() override;

  /// A firm without accounts and with the years 2023 and 2024.
  std::string MakeFirm(const std::string& name = "firm");

  /// The firm of MakeFirm, the year 2024, with the session open.
  void OpenNewFirm();

  /// The same firm anew for a user of level 3, "Clerk", beside an owner of level 9.
  void OpenAsClerk();
  CDbLink& Db() const { return gSession->MainDb(); }

  void AddAccount(int code, const std::string& head, int group = 140, const std::string& station = "");

  /// A voucher of two lines: line 1 of the account, line 2 of the other side. An amount above 0 is a debit of
  /// the account; empty dates are null.
  struct Voucher {
    int id = 0;
    const char* date = "";
    const char* amount = "0";
    const char* book = "BNK";
    const char* cleared = "";
    const char* narration = "";
    int other = 201;
    int account = 101;
    int line = 1;
  };
  void AddVoucher(const Voucher& voucher);

  /// Grants the user exactly these actions ("N" open, "P" print) on a right.
  static void Grant(const std::string& user, const std::string& rightKey, const std::string& actions);

  /// The cleared date of a voucher's line as the books have it.
  std::string Stored(int voucher, int line = 1) const;

  /// What a person does: errors come to the log, queued keys arrive afterwards.
  void Do(const std::function<void()>& act);
  void Key(Form& form, int code, int shift = 0);
  void TypeKeys(Form& form, const std::string& text);
  void Refuses(const std::function<void()>& act, const std::string& why);

  /// Starts something that waits for a person; the acts are what he does in the windows that come up.
  void During(const std::function<void()>& start, const Acts& acts);

  FormPtr ShowStatement(int account = 101, const std::string& from = "", const std::string& to = "");
  FormPtr ShowWorkbench(const FormPtr& statement);

  void AnswerMessage(int button = 1) { runtime_.Laid.Add({{"to", "message"}, {"button", button}}); }
  void AnswerDate(const std::string& date) { runtime_.Laid.Add({{"to", "date"}, {"date1", date}}); }
  void AnswerPeriod(const std::string& first, const std::string& last) {
    runtime_.Laid.Add({{"to", "date"}, {"date1", first}, {"date2", last}});
  }

  /// That member of all events of a kind.
  Texts Take(const std::string& kind, const char* member);
  /// The texts of the messages, the errors, the statements sent since the last time they were asked for.
  Texts Messages() { return Take("message", "text"); }
  Texts Errors() { return Take("error", "text"); }
  Texts Statements() { return Take("sql", "text"); }

  /// Of the statements those that change rows.
  Texts Updates();

  /// And those that change anything.
  Texts Changes();

  /// The messages with their icons: "W: Invalid date".
  Texts Told();

  std::vector<Json> Events(const std::string& kind);
  /// The event of that kind, of which there must be one; it holds these members.
  Json One(const std::string& kind, const Json& members = Json::object());

  TempFolder folder_;
  FirebirdAddress server_;  ///< where the firm's databases are made; nothing for files
  std::ostringstream lines_;
  EventLog log_{lines_};
  DriverRuntime runtime_{log_, folder_.Path().string()};
  Desk desk_;

 private:
  void ReadLog();

  std::vector<Json> events_;
};

/// A control of a form by its name, as what it is.
template <class T>
T& At(const FormPtr& form, const std::string& name, int index = Control::kNoIndex) {
  return dynamic_cast<T&>(form->ControlAt(name, index));
}

/// Cells of a grid's row, joined by bars.
std::string RowText(const GridModel& grid, int row, const std::vector<int>& cols);

/// Those of all rows below the headings.
std::vector<std::string> RowTexts(const GridModel& grid, const std::vector<int>& cols);

/// A cell entered and typed into, but not left.
void TypeInCell(EditableGrid& grid, int row, int col, const std::string& text);

/// A cell from the person's first key to leaving it; whether it was left.
bool EditCell(EditableGrid& grid, int row, int col, const std::string& text);

}  // namespace quillon
