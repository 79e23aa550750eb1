#include "desk/safety/BulkJournal.h"

#include "books/SqlText.h"
#include "desk/firm/BulkTurn.h"
#include "host/data/CDataSet.h"
#include "host/values/Errors.h"

namespace quillon {

using books::SqlNumber;
using books::SqlString;

std::string BulkEntry::Words() const {
  return "No. " + std::to_string(Run) + ", " + Screen + (AccountName.empty() ? "" : " of " + AccountName) +
         ", " + SpokenTime(BeganAt) + ", by " + User;
}

int BulkJournal::Begin(const BulkEntry& entry) {
  const auto run = static_cast<int>(common_.Lookup("BulkRuns", "Max(RunNo)", "").ToInteger() + 1);
  common_.Execute(
      "insert into BulkRuns (RunNo,BeganAt,UserName,FormKey,Screen,AccountCode,AccountName) values (" +
      SqlNumber(run) + "," + SqlString(TimeNow()) + "," + SqlString(entry.User) + "," +
      SqlString(entry.FormKey) + "," + SqlString(entry.Screen) + "," + SqlNumber(entry.Account) + "," +
      SqlString(entry.AccountName) + ")");
  return run;
}

void BulkJournal::End(int run, const std::string& outcome, const std::string& choices,
                      const std::string& told) {
  CDataSet row;
  row.Open("select RunNo,EndedAt,Outcome,Choices,Told from BulkRuns where RunNo=" + SqlNumber(run), common_,
           3, CDataSet::kLockOptimistic);
  row.SetField("EndedAt", TimeNow());
  row.SetField("Outcome", outcome);
  row.SetField("Choices", choices);
  row.SetField("Told", told);
  row.Update();
}

void BulkJournal::NoteGoneBack(int run) {
  common_.Execute("update BulkRuns set Outcome=" + SqlString(kGoneBack) + ",EndedAt=coalesce(EndedAt," +
                  SqlString(TimeNow()) + ") where RunNo=" + SqlNumber(run));
}

std::vector<BulkEntry> BulkJournal::Read(const std::string& condition) const {
  std::vector<BulkEntry> entries;
  CDataSet rows;
  for (rows.Open("select * from BulkRuns" + condition + " order by RunNo desc", common_); !rows.Eof();
       rows.MoveNext()) {
    const auto text = [&rows](const char* column) { return rows.Field(column).ToText(); };
    entries.push_back({static_cast<int>(rows.Field("RunNo").ToInteger()), text("BeganAt"), text("EndedAt"),
                       text("UserName"), text("FormKey"), text("Screen"),
                       rows.Field("AccountCode").ToInteger(), text("AccountName"), text("Choices"),
                       text("Told"), text("Outcome")});
  }
  return entries;
}

std::vector<BulkEntry> BulkJournal::All() const { return Read(""); }

BulkEntry BulkJournal::Of(int run) const {
  const std::vector<BulkEntry> entries = Read(" where RunNo=" + SqlNumber(run));
  if (entries.empty()) throw HostError("The journal of bulk work has no No. " + std::to_string(run));
  return entries.front();
}

/// Runs begin one after the other, so the one at work is the last.
std::vector<BulkEntry> BulkJournal::BrokenOff(bool oneIsAtWork) const {
  std::vector<BulkEntry> entries = Read(" where EndedAt is null");
  if (oneIsAtWork && !entries.empty()) entries.erase(entries.begin());
  return entries;
}

}  // namespace quillon
