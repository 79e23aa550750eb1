#include "desk/safety/BulkRun.h"

#include "desk/safety/CopiedFirm.h"
#include "desk/services/DeskSession.h"
#include "desk/services/Settings.h"
#include "host/forms/BusyJob.h"
#include "host/services/IStd.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

std::string DoingOf(const BulkEntry& work) {
  return work.Screen + (work.AccountName.empty() ? "" : " of " + work.AccountName);
}

BulkEntry WithUser(BulkEntry work, const std::string& user) {
  work.User = user;
  return work;
}

/// What the firm has set; else the usual.
CopyLimits LimitsOf(DeskSession& session) {
  const Settings settings(session.CommonDb(), session.CurrentUser().Name);
  CopyLimits limits;
  const long long runs = ValInteger(settings.OfFirm("BulkCopies.Runs"));
  const long long megabytes = ValInteger(settings.OfFirm("BulkCopies.Megabytes"));
  if (runs > 0) limits.Runs = static_cast<int>(runs);
  if (megabytes > 0) limits.Megabytes = megabytes;
  return limits;
}

/// How much there is to copy, where that can be seen from here.
std::string SizeOf(DeskSession& session, int year) {
  const FirebirdAddress& place = session.Books().PlaceOfYear(year).Database;
  std::error_code unseen;
  const std::uintmax_t bytes = std::filesystem::file_size(place.Database, unseen);
  return unseen ? "" : ", " + std::to_string((bytes >> 20U) + 1) + " MB";
}

}  // namespace

BulkRun::BulkRun(DeskSession& session, BulkEntry work, std::vector<int> years)
    : session_(session),
      turn_(*session.Books().Common(), session.CurrentUser().Name, DoingOf(work)),
      copies_(session.Books()),
      journal_(session.CommonDb()),
      work_(WithUser(std::move(work), session.CurrentUser().Name)),
      years_(std::move(years)),
      number_(journal_.Begin(work_)) {
  copies_.RemoveLeft();
  CopiedFirm::RemoveLeft(session_.Books());
}

BulkRun::~BulkRun() {
  for (const int year : years_) session_.Books().OpenYear(year).Db->BeforeFirstStore = nullptr;
}

void BulkRun::Copy() {
  try {
    for (std::size_t i = 0; i < years_.size(); ++i) {
      const std::string place =
          years_.size() > 1 ? ", " + std::to_string(i + 1) + " of " + std::to_string(years_.size()) : "";
      const BusyJob busy("Copying the year " + YearName(years_[i]) + place + SizeOf(session_, years_[i]) +
                         " …");
      copies_.Make(number_, years_[i]);
    }
  } catch (const HostError&) {
    copies_.Drop(number_);
    throw;
  }
  isCopied_ = true;
  copies_.DropBeyond(LimitsOf(session_));
}

void BulkRun::Watch() {
  ReadYears();
  for (const int year : years_) {
    session_.Books().OpenYear(year).Db->BeforeFirstStore = [this] { Begins(); };
  }
}

void BulkRun::ReadYears() {
  for (const int year : years_) {
    checks_[year] =
        std::make_unique<BulkCheck>(*session_.Books().OpenYear(year).Db, work_.FormKey, work_.Account);
  }
}

/// Whichever year is the first.
void BulkRun::Begins() {
  for (const int year : years_) session_.Books().OpenYear(year).Db->BeforeFirstStore = nullptr;
  hasBegun_ = true;
  if (isCopied_) AskAboutOthers();
}

void BulkRun::AskAboutOthers() {
  std::size_t others = 0;
  {
    const BusyJob busy("Looking what others have entered …");
    for (const int year : years_) {
      const BooksDigest now = BooksDigest::Of(session_.Books().PlaceOfYear(year).Database);
      others += BooksDigest::Read(copies_.Before(number_, year)).ChangesTo(now).size();
    }
  }
  if (others == 0) return;
  if (!gStd->AskYesNo("The copy is older than " + std::to_string(others) + " entries. Copy again?")) return;
  Copy();
  ReadYears();
}

BulkFindings BulkRun::EndYear(int startYear) {
  const BusyJob busy("Checking the year " + YearName(startYear) + " …");
  const BooksDigest after = BooksDigest::Of(session_.Books().PlaceOfYear(startYear).Database);
  const std::vector<RowChange> changes =
      BooksDigest::Read(copies_.Before(number_, startYear)).ChangesTo(after);
  changed_ += changes.size();
  if (changes.empty()) return {};
  after.Write(copies_.After(number_, startYear));
  return checks_.at(startYear)->Compare(changes);
}

BulkFindings BulkRun::End(const std::string& choices, const std::string& told) {
  if (!isCopied_) {
    journal_.End(number_, BulkJournal::kUncopied, choices, told);
    return {};
  }
  BulkFindings all;
  for (const int year : hasBegun_ ? years_ : std::vector<int>()) {
    const std::string where = years_.size() > 1 ? YearName(year) + ": " : "";
    const BulkFindings findings = EndYear(year);
    for (const std::string& text : findings.AsItWorks) all.AsItWorks.push_back(where + text);
    for (const std::string& text : findings.Unexplained) all.Unexplained.push_back(where + text);
  }
  if (changed_ == 0) copies_.Drop(number_);
  journal_.End(number_, changed_ == 0 ? BulkJournal::kNothing : BulkJournal::kDone, choices, told);
  return all;
}

}  // namespace quillon
