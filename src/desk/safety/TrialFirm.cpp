#include "desk/safety/TrialFirm.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <set>

#include "books/SqlText.h"
#include "desk/firebird/BooksDigest.h"
#include "desk/firebird/EngineTools.h"
#include "desk/services/Settings.h"
#include "host/data/CDataSet.h"
#include "host/services/FinYear.h"
#include "host/services/IStd.h"
#include "host/values/Errors.h"
#include "host/values/Text.h"

namespace quillon {

namespace fs = std::filesystem;

namespace {

constexpr const char* kMark = "trial";
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

TrialFirm::TrialFirm(Firm& firm, int run)
    : firm_(firm),
      folder_(firm.Folder() / "copies" / ("trial-" + std::to_string(run))),
      copies_(BookCopies(firm).Of(run)) {
  try {
    Make(run);
  } catch (const fs::filesystem_error& error) {
    fs::remove_all(folder_);
    throw HostError(error.what());
  } catch (...) {
    fs::remove_all(folder_);
    throw;
  }
}

TrialFirm::~TrialFirm() {
  std::error_code ignored;
  fs::remove_all(folder_, ignored);
}

bool TrialFirm::IsIn(const fs::path& folder) { return fs::exists(folder / kMark); }

FirebirdAddress TrialFirm::Place(const std::string& name) const {
  FirebirdAddress place{(folder_ / name).string(), "", "", false};
  firm_.LetEngineName(place);
  return place;
}

/// Its name says what it is wherever a firm's name stands, on pages too.
void TrialFirm::Make(int run) {
  fs::remove_all(folder_);
  fs::create_directories(folder_);
  FirmFile file;
  file.Name = "TRIAL - " + firm_.Name();
  for (const BookCopy& copy : copies_) {
    const FirmFile::Year& year = firm_.PlaceOfYear(copy.StartYear);
    const FirebirdAddress place = Place(std::to_string(copy.StartYear) + ".fdb");
    BookCopies(firm_).Restore(copy, place);
    file.Years[copy.StartYear] = {place, year.StartDate, year.EndDate};
  }
  const fs::path common = folder_ / "common.fbk";
  EngineTools::Copy(firm_.Common()->Address(), common);
  file.Common = Place("common.fdb");
  EngineTools::Restore(common, file.Common);
  fs::remove(common);
  const auto link = FirebirdLink::Open(file.Common, "");
  for (const char* table : {"BulkTurn", "YearPlaces", "BulkRuns", "BookCopies"}) {
    link->Execute("delete from " + std::string(table));
  }
  link->Execute("update Firm set FirmName=" + books::SqlString(text::Left(file.Name, 80)));
  std::ofstream(folder_ / kMark) << run << "\n";
  file.Write(folder_);
}

std::vector<TrialLine> TrialFirm::Compare() const {
  std::vector<TrialLine> lines;
  std::vector<TrialLine> rows;
  for (const BookCopy& copy : copies_) {
    const std::string year = YearName(copy.StartYear);
    const FirebirdAddress tried = Place(std::to_string(copy.StartYear) + ".fdb");
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
  return Settings(*FirebirdLink::Open(Place("common.fdb"), ""), "").OfFirm(key);
}

}  // namespace quillon
