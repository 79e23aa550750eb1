#include "tests/support/DeskFixture.h"

#include <set>

#include "books/SqlText.h"
#include "desk/firm/Firm.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

/// Made once; each test copies it.
const std::filesystem::path& Template() {
  static const TempFolder folder;
  static const std::filesystem::path firm = [] {
    std::filesystem::path path = folder.Path() / "firm";
    FirmDetails details;
    details.FirmName = "Sharda Trading Co.";
    CreateFirm(path, details, {2023, 2024});
    // No test pulls the plug: without forced writes a test takes a third of the time.
    for (const char* file : {"common.fdb", "2023.fdb", "2024.fdb"}) {
      if (std::system(("gfix -user SYSDBA -write async " + (path / file).string()).c_str()) != 0) break;
    }
    return path;
  }();
  return firm;
}

Desk::Options OptionsOf(EventLog& log, const TempFolder& folder) {
  Desk::Options options;
  options.OutputFolder = folder.Path().string();
  options.Area = {0, 0, 20490, 10500};
  options.Sql = &log;
  options.Reports = &log;
  return options;
}

std::string DateOrNull(const std::string& date) { return date.empty() ? "null" : "'" + date + "'"; }

}  // namespace

DeskTest::DeskTest() : desk_(OptionsOf(log_, folder_)) { log_.TraceSql = true; }

DeskTest::~DeskTest() {
  desk_.CloseFirm();
  static const std::set<std::string> kQuestions = {"message", "input", "file",    "font",
                                                   "date",    "pick",  "parties", "printdialog"};
  ReadLog();
  for (const Json& event : events_) {
    const std::string kind = event.value("event", "");
    const bool unanswered = kQuestions.contains(kind) && event.value("answered", Json()) == "default";
    if (unanswered || kind == "error") ADD_FAILURE() << "not expected: " << Line(event);
  }
  if (const Json left = runtime_.Laid.LeftOver(); !left.empty()) ADD_FAILURE() << "left over: " << Line(left);
}

std::string DeskTest::MakeFirm(const std::string& name) {
  const std::filesystem::path made = folder_.Path() / name;
  if (!server_.Database.empty()) {
    FirmDetails details;
    details.FirmName = "Sharda";
    CreateFirm(made, details, {2023, 2024}, server_);
    return made.string();
  }
  std::filesystem::copy(Template(), made, std::filesystem::copy_options::recursive);
  return made.string();
}

void DeskTest::OpenNewFirm() {
  desk_.OpenFirm(MakeFirm());
  runtime_.Ignore(desk_.App().MainWindow().MainForm().get());
}

void DeskTest::AddAccount(int code, const std::string& head, int group, const std::string& station) {
  Db().Execute("insert into FAMaster (mcd,mhd,mst,mbshno) values (" + std::to_string(code) + "," +
               books::SqlString(head) + "," + books::SqlString(station) + "," + std::to_string(group) + ")");
}

void DeskTest::AddVoucher(const Voucher& voucher) {
  const std::string id = std::to_string(voucher.id);
  const auto line = [&](int subNo, int account, int other, const std::string& amount,
                        const std::string& cleared) {
    Db().Execute(
        "insert into FAData (VoucherID,dVchSubNo,dSrNo,dVchNo,dVchDate,dcd,dcd2,dAmt,dBook,"
        "dBankDate,NarrationID) values (" +
        id + "," + std::to_string(subNo) + "," + id + ",'" + id + "','" + voucher.date + "'," +
        std::to_string(account) + "," + std::to_string(other) + "," + amount + ",'" + voucher.book + "'," +
        DateOrNull(cleared) + "," + id + ")");
  };
  Db().Execute("insert into FANar (NarrationID,Narration) values (" + id + "," +
               books::SqlString(voucher.narration) + ")");
  line(voucher.line, voucher.account, voucher.other, voucher.amount, voucher.cleared);
  line(voucher.line + 1, voucher.other, voucher.account, "-(" + std::string(voucher.amount) + ")", "");
  Db().Execute("insert into FADocs (VoucherID) values (" + id + ")");
}

void DeskTest::OpenAsClerk() {
  for (const char* user : {"'Clerk',3", "'Owner',9"}) {
    gSession->CommonDb().Execute("insert into Users (UserName,UserLevel) values (" + std::string(user) + ")");
  }
  const std::string firm = desk_.Session().Books().Folder().string();
  desk_.OpenFirm(firm, "Clerk");
}

void DeskTest::Grant(const std::string& user, const std::string& rightKey, const std::string& actions) {
  gSession->CommonDb().Execute("update or insert into UserRights (UserName,RightKey,Actions) values (" +
                               books::SqlString(user) + "," + books::SqlString(rightKey) + "," +
                               books::SqlString(actions) + ")");
}

std::string DeskTest::Stored(int voucher, int line) const {
  return Db()
      .Lookup("FAData", "dBankDate",
              "VoucherID=" + std::to_string(voucher) + " and dVchSubNo=" + std::to_string(line))
      .ToDate()
      .Text();
}

void DeskTest::Do(const std::function<void()>& act) {
  runtime_.Act(act);
  runtime_.DeliverKeys();
}

void DeskTest::Key(Form& form, int code, int shift) {
  const bool types = code == keys::kEnter && shift == 0;
  Do([&] { form.UserKey(code, shift, types ? code : 0); });
}

void DeskTest::TypeKeys(Form& form, const std::string& text) {
  for (const char c : text) {
    Do([&] { form.UserKey(CodeOfCharacter(c), 0, c); });
  }
}

void DeskTest::Refuses(const std::function<void()>& act, const std::string& why) {
  try {
    runtime_.Act(act);
    ADD_FAILURE() << "not refused: " << why;
  } catch (const Refused& refused) {
    EXPECT_EQ(std::string(refused.what()), why);
  }
}

void DeskTest::During(const std::function<void()>& start, const Acts& acts) {
  std::size_t next = 0;
  runtime_.NextCommand = [&] {
    if (next == acts.size()) {
      ADD_FAILURE() << "something still waits for a person";
      return false;
    }
    Do(acts[next++]);
    return true;
  };
  Do(start);
  EXPECT_EQ(next, acts.size()) << "nobody waited for the rest";
  runtime_.NextCommand = nullptr;
}

FormPtr DeskTest::ShowStatement(int account, const std::string& from, const std::string& to) {
  FormPtr statement = gApp->GetForm("Account");
  statement->Set("AccountCode", account);
  if (!from.empty()) statement->Set("Date1", from);
  if (!to.empty()) statement->Set("Date2", to);
  Do([&] { gApp->ShowForm(statement); });
  return statement;
}

FormPtr DeskTest::ShowWorkbench(const FormPtr& statement) {
  Do([&] { At<CButtonBar>(statement, "BtnBar1").UserPress("Reconciliation"); });
  return runtime_.ActiveForm();
}

void DeskTest::ReadLog() {
  std::istringstream lines(lines_.str());
  lines_.str("");
  for (std::string line; std::getline(lines, line);) events_.push_back(Json::parse(line));
}

std::vector<Json> DeskTest::Events(const std::string& kind) {
  ReadLog();
  std::vector<Json> taken;
  for (const Json& event : events_) {
    if (event.value("event", "") == kind) taken.push_back(event);
  }
  std::erase_if(events_, [&](const Json& event) { return event.value("event", "") == kind; });
  return taken;
}

Json DeskTest::One(const std::string& kind, const Json& members) {
  const std::vector<Json> events = Events(kind);
  EXPECT_EQ(events.size(), 1U) << kind;
  if (events.empty()) return Json::object();
  for (const auto& [name, value] : members.items()) EXPECT_EQ(events[0][name], value) << kind << ": " << name;
  return events[0];
}

DeskTest::Texts DeskTest::Updates() {
  Texts updates = Statements();
  std::erase_if(updates, [](const std::string& sql) { return text::Upper(sql.substr(0, 6)) != "UPDATE"; });
  return updates;
}

DeskTest::Texts DeskTest::Changes() {
  Texts changes = Statements();
  std::erase_if(changes, [](const std::string& sql) { return text::Upper(sql.substr(0, 6)) == "SELECT"; });
  return changes;
}

DeskTest::Texts DeskTest::Told() {
  Texts told;
  for (const Json& event : Events("message"))
    told.push_back(event.at("icon").get<std::string>() + ": " + event.at("text").get<std::string>());
  return told;
}

DeskTest::Texts DeskTest::Take(const std::string& kind, const char* member) {
  Texts texts;
  for (const Json& event : Events(kind)) texts.push_back(event.at(member).get<std::string>());
  return texts;
}

std::string RowText(const GridModel& grid, int row, const std::vector<int>& cols) {
  std::vector<std::string> cells;
  cells.reserve(cols.size());
  for (const int col : cols) cells.push_back(grid.TextMatrix(row, col));
  return text::Join(cells, "|");
}

std::vector<std::string> RowTexts(const GridModel& grid, const std::vector<int>& cols) {
  std::vector<std::string> rows;
  for (int row = 1; row < grid.Rows(); ++row) rows.push_back(RowText(grid, row, cols));
  return rows;
}

void TypeInCell(EditableGrid& grid, int row, int col, const std::string& text) {
  gRuntime->Act([&] {
    ASSERT_TRUE(grid.UserEnterCell(row, col));
    grid.UserType(text);
  });
  gRuntime->DeliverKeys();
}

bool EditCell(EditableGrid& grid, int row, int col, const std::string& text) {
  bool left = false;
  gRuntime->Act([&] {
    if (!grid.UserEnterCell(row, col)) return;
    grid.UserType(text);
    left = grid.UserLeaveCell();
  });
  gRuntime->DeliverKeys();
  return left;
}

}  // namespace quillon
