#include "desk/safety/TrialFirm.h"

#include <algorithm>
#include <map>
#include <set>

#include "books/SqlText.h"
#include "desk/firebird/BooksDigest.h"
#include "desk/services/Settings.h"
#include "host/data/CDataSet.h"
#include "host/services/FinYear.h"
#include "host/services/IStd.h"
#include "host/values/Errors.h"
#include "host/values/Text.h"

namespace quillon {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kMostRows = 5000;  // that are told by their columns

std::string WordOf(const std::string& table) {
  static const std::map<std::string, std::string> kWords = {
      {"FADATA", "Entry"},     {"FAMASTER", "Account"},      {"FAHEADS", "Account head"},
      {"DOCMAIN", "Document"}, {"DOCDATA", "Document line"}, {"FADOCS", "Document of entry"},
      {"FANAR", "Narration"},  {"REFMASTER", "Reference"}};
  const auto known = kWords.find(table);
  return known == kWords.end() ? table : known->second;
}

std::string WordOf(RowChange::Kind kind) {
  return kind == RowChange::Kind::kAdded  ? " added"
         : kind == RowChange::Kind::kGone ? " deleted"
                                          : " changed";
}

using Fields = std::vector<std::pair<std::string, std::string>>;

/// The row of a key; empty where there is none, and for a table without a key.
Fields RowOf(FirebirdLink& year, const RowChange& change) {
  const std::vector<std::string>& key = year.KeyOf(change.Table);
  const std::vector<std::string> values = text::Split(change.Key, ",");
  if (key.empty() || key.size() != values.size()) return {};
  std::vector<std::string> conditions;
  for (std::size_t i = 0; i < key.size(); ++i)
    conditions.push_back(key[i] + "=" + books::SqlString(values[i]));
  CDataSet row;
  row.Open("select * from " + change.Table + " where " + text::Join(conditions, " and "), year);
  Fields fields;
  if (row.Eof()) return fields;
  for (const std::string& name : row.FieldNames()) fields.emplace_back(name, row.Field(name).ToText());
  return fields;
}

std::string ValueOf(const Fields& fields, const std::string& name) {
  const auto field =
      std::find_if(fields.begin(), fields.end(), [&](const auto& known) { return known.first == name; });
  return field == fields.end() ? "" : field->second;
}

std::string HeadOf(FirebirdLink& year, const std::string& code) {
  return year.Lookup("FAMaster", "mhd", "mcd=" + books::SqlNumber(code)).ToText();
}

/// An entry as a bookkeeper reads it: "11-Apr-2024, C 00001, Telephone Expenses, 450.00 Dr.".
std::string EntryWords(FirebirdLink& year, const Fields& entry) {
  if (entry.empty()) return {};
  const Amount amount = Variant(ValueOf(entry, "DAMT")).ToAmount();
  return ValueOf(entry, "DVCHDATE") + ", " + ValueOf(entry, "DBOOK") + " " + ValueOf(entry, "DVCHNO") + ", " +
         HeadOf(year, ValueOf(entry, "DCD")) + ", " + gStd->FormatAmount(amount.Abs(), "C2") +
         (amount < Amount() ? " Cr." : " Dr.");
}

/// The columns of a row that are not as in the other one.
std::string Words(const Fields& some, const Fields& others) {
  std::vector<std::string> words;
  for (std::size_t i = 0; i < some.size(); ++i) {
    const bool isSame = i < others.size() && others[i] == some[i];
    if (!isSame && !some[i].second.empty()) words.push_back(some[i].first + " " + some[i].second);
  }
  return text::Join(words, ", ");
}

TrialLine LineOf(FirebirdLink& before, FirebirdLink& after, const std::string& year,
                 const RowChange& change) {
  const Fields was = RowOf(before, change);
  const Fields is = RowOf(after, change);
  TrialLine line{year, WordOf(change.Table) + WordOf(change.What), change.Key, Words(was, is),
                 Words(is, was)};
  if (change.Table == "FADATA") {
    line.Before = EntryWords(before, was);
    line.After = EntryWords(after, is);
  }
  return line;
}

std::map<std::int64_t, Amount> Balances(FirebirdLink& year) {
  std::map<std::int64_t, Amount> balances;
  CDataSet rows;
  for (rows.Open("select dcd,sum(dAmt) from FAData group by dcd", year); !rows.Eof(); rows.MoveNext()) {
    balances[rows.Field(std::size_t{0}).ToInteger()] = rows.Field(std::size_t{1}).ToAmount();
  }
  return balances;
}

void CompareBalances(FirebirdLink& before, FirebirdLink& after, const std::string& year,
                     std::vector<TrialLine>& lines) {
  std::map<std::int64_t, Amount> was = Balances(before);
  std::map<std::int64_t, Amount> is = Balances(after);
  std::set<std::int64_t> codes;
  for (const auto& balance : was) codes.insert(balance.first);
  for (const auto& balance : is) codes.insert(balance.first);
  for (const std::int64_t code : codes) {
    if (was[code] == is[code]) continue;
    const std::string number = std::to_string(code);
    const std::string head = HeadOf(before, number);
    lines.push_back({year, "Balance", head.empty() ? HeadOf(after, number) : head,
                     gStd->FormatAmount(was[code], "C2"), gStd->FormatAmount(is[code], "C2")});
  }
}

}  // namespace

TrialFirm::~TrialFirm() {
  std::error_code ignored;
  fs::remove_all(Folder(), ignored);
}

std::vector<TrialLine> TrialFirm::Compare() const {
  std::vector<TrialLine> lines;
  std::vector<TrialLine> rows;
  for (const BookCopy& copy : tried_.Copies()) {
    const std::string year = YearName(copy.StartYear);
    const FirebirdAddress tried = tried_.Place(std::to_string(copy.StartYear) + ".fdb");
    const BooksDigest before = BooksDigest::Read(BookCopies(firm_).Before(copy.Run, copy.StartYear));
    const std::vector<RowChange> changes = before.ChangesTo(BooksDigest::Of(tried));
    if (changes.empty()) continue;
    FirebirdLink& now = *firm_.OpenYear(copy.StartYear).Db;
    const auto after = FirebirdLink::Open(tried, "");
    CompareBalances(now, *after, year, lines);
    for (const RowChange& change : changes) {
      if (rows.size() < kMostRows) {
        rows.push_back(LineOf(now, *after, year, change));
      } else {
        rows.push_back({year, WordOf(change.Table) + WordOf(change.What), change.Key, "", ""});
      }
    }
  }
  lines.insert(lines.end(), rows.begin(), rows.end());
  return lines;
}

std::string TrialFirm::Setting(const std::string& key) const {
  return Settings(*FirebirdLink::Open(tried_.Place("common.fdb"), ""), "").OfFirm(key);
}

}  // namespace quillon
