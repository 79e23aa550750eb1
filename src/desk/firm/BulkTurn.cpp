#include "desk/firm/BulkTurn.h"

#include <array>
#include <ctime>

#include "books/SqlText.h"
#include "desk/firm/ProgramMark.h"
#include "host/data/CDataSet.h"
#include "host/values/Errors.h"

namespace quillon {

namespace {

struct Turn {
  BulkTurn::Holder Holder;
  std::string Program;
  std::int64_t Connection;
};

std::optional<Turn> Read(FirebirdLink& common) {
  CDataSet row;
  row.Open("Select Program,Connection,UserName,Since,Doing,AllLeave from BulkTurn", common);
  if (row.Eof()) return {};
  return Turn{{row.Field("UserName").ToText(), row.Field("Since").ToText(), row.Field("Doing").ToText(),
               row.Field("AllLeave").ToInteger() != 0},
              row.Field("Program").ToText(),
              row.Field("Connection").ToInteger()};
}

/// On a server the programs of other machines count too, so the server is asked whether it still has them.
bool IsAlive(FirebirdLink& common, const Turn& turn) {
  if (!common.Address().IsServer()) return IsAtWork(turn.Program);
  return common.RowExists("select 1 from mon$attachments where mon$attachment_id=" +
                          books::SqlNumber(turn.Connection));
}

void Drop(FirebirdLink& common, const std::string& program) {
  common.Execute("delete from BulkTurn where Program=" + books::SqlString(program));
}

}  // namespace

std::string TimeNow() {
  const std::time_t now = std::time(nullptr);
  std::tm parts{};
  localtime_r(&now, &parts);
  std::array<char, 32> text{};
  std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", &parts);
  return text.data();
}

std::string SpokenTime(const std::string& time) {
  constexpr std::size_t kDay = 10;
  constexpr std::size_t kMinutes = 16;
  if (time.size() < kMinutes) return time;
  return Date::Parse(time.substr(0, kDay)).Text() + time.substr(kDay, kMinutes - kDay);
}

BulkTurn::BulkTurn(FirebirdLink& common, const std::string& user, const std::string& doing, bool allLeave)
    : common_(common) {
  Clear(common);
  try {
    common.Execute(
        "insert into BulkTurn (TurnNo,Program,Connection,UserName,Since,Doing,AllLeave) values (1," +
        books::SqlString(OwnProgramMark()) + ",current_connection," + books::SqlString(user) + "," +
        books::SqlString(TimeNow()) + "," + books::SqlString(doing) + "," + (allLeave ? "1" : "0") + ")");
  } catch (const DbError&) {
    const std::optional<Holder> other = Now(common);
    if (!other) throw;
    throw HostError("Bulk work is going on in this firm: " + other->Words() + ". Try again when it is done.");
  }
}

BulkTurn::~BulkTurn() {
  try {
    Drop(common_, OwnProgramMark());
  } catch (const std::exception&) {
    // Void as soon as this program has ended.
  }
}

std::optional<BulkTurn::Holder> BulkTurn::Now(FirebirdLink& common) {
  const std::optional<Turn> turn = Read(common);
  if (!turn || !IsAlive(common, *turn)) return {};
  return turn->Holder;
}

std::optional<BulkTurn::Holder> BulkTurn::AsksToLeave(FirebirdLink& common) {
  const std::optional<Turn> turn = Read(common);
  if (!turn || !turn->Holder.AllLeave || turn->Program == OwnProgramMark() || !IsAlive(common, *turn)) {
    return {};
  }
  return turn->Holder;
}

bool BulkTurn::Clear(FirebirdLink& common) {
  const std::optional<Turn> turn = Read(common);
  if (!turn || IsAlive(common, *turn)) return false;
  Drop(common, turn->Program);
  return turn->Holder.AllLeave;
}

}  // namespace quillon
