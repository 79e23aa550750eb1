#include "desk/firebird/FirebirdStatus.h"

#include <array>
#include <cerrno>
#include <ibase.h>

#include "desk/firebird/FirebirdEngine.h"
#include "host/values/Errors.h"

namespace quillon {

namespace {

struct StatusDisposer {
  void operator()(Firebird::IStatus* status) const { status->dispose(); }
};

/// One status for each thread: the wrappers above it are short-lived and never nested.
Firebird::IStatus* ThreadStatus() {
  thread_local const std::unique_ptr<Firebird::IStatus, StatusDisposer> status(
      FirebirdEngine::Master().getStatus());
  status->init();
  return status.get();
}

using Reason = DbError::Reason;

struct Meaning {
  ISC_STATUS Code;
  Reason Why;
  const char* Words;
};

constexpr const char* kTaken = "Another user is changing the same record just now.";
constexpr const char* kToLookAt = "These books are a copy to look at: nothing can be stored in them.";
constexpr const char* kLost = "The database cannot be reached. Try again in a while.";
constexpr const char* kTwice = "There is a record with this key already.";
constexpr const char* kDamaged = "The database is damaged.";
constexpr const char* kUnreadable = "The file of the database cannot be read or written.";

/// The first line whose code the engine named is what happened: the closer the cause, the further up.
constexpr Meaning kMeanings[] = {
    {isc_lock_conflict, Reason::kConflict, kTaken},
    {isc_lock_timeout, Reason::kConflict, kTaken},
    {isc_update_conflict, Reason::kConflict, kTaken},
    {isc_deadlock, Reason::kConflict, kTaken},
    {isc_unique_key_violation, Reason::kOther, kTwice},
    {isc_no_dup, Reason::kOther, kTwice},
    {isc_foreign_key, Reason::kOther, "Other records and this one hold each other: one of them is missing."},
    {isc_not_valid, Reason::kOther, "A value is missing that every such record must have."},
    {isc_login, Reason::kOther, "The database server does not accept this user and password."},
    {isc_no_priv, Reason::kOther, "This user of the database has no right to do that."},
    {isc_string_truncation, Reason::kOther, "A text is longer than its place in the books."},
    {isc_numeric_out_of_range, Reason::kOther, "A number is too large for its place in the books."},
    {isc_arith_except, Reason::kOther, "A calculation in the database failed."},
    {isc_convert_error, Reason::kOther, "A value is of another kind than its place in the books."},
    {isc_cancelled, Reason::kOther, "The work was broken off."},
    {isc_read_only_database, Reason::kOther, kToLookAt},
    {isc_att_shutdown, Reason::kLost, kLost},
    {isc_net_server_shutdown, Reason::kLost, kLost},
    {isc_network_error, Reason::kLost, kLost},
    {isc_net_read_err, Reason::kLost, kLost},
    {isc_net_write_err, Reason::kLost, kLost},
    {isc_conn_lost, Reason::kLost, kLost},
    {isc_lost_db_connection, Reason::kLost, kLost},
    {isc_shutdown, Reason::kLost, "The database is closed for maintenance."},
    {isc_already_opened, Reason::kLost, "Another program has the database for itself."},
    {isc_db_corrupt, Reason::kDamaged, kDamaged},
    {isc_bug_check, Reason::kDamaged, kDamaged},
    {isc_badpage, Reason::kDamaged, kDamaged},
    {isc_badpagtyp, Reason::kDamaged, kDamaged},
    {isc_bad_checksum, Reason::kDamaged, kDamaged},
    {isc_page_type_err, Reason::kDamaged, kDamaged},
    {isc_bad_db_format, Reason::kDamaged, "The file is no database."},
    {isc_wrong_ods, Reason::kDamaged, "The file is a database of another version of the engine."},
    {isc_io_error, Reason::kLost, kUnreadable},
    {isc_unavailable, Reason::kLost, kLost},
};

bool Names(const ISC_STATUS* vector, ISC_STATUS kind, ISC_STATUS value) {
  for (; *vector != isc_arg_end; vector += *vector == isc_arg_cstring ? 3 : 2) {
    if (*vector == kind && vector[1] == value) return true;
  }
  return false;
}

Meaning MeaningOf(const ISC_STATUS* vector, const std::string& sqlState) {
  for (const int full : {ENOSPC, EDQUOT, EFBIG}) {
    if (Names(vector, isc_arg_unix, full)) {
      return {0, Reason::kDiskFull, "The disk that holds the books is full. Nothing of this was stored."};
    }
  }
  for (const Meaning& meaning : kMeanings) {
    if (Names(vector, isc_arg_gds, meaning.Code)) return meaning;
  }
  if (sqlState == "40001") return {0, Reason::kConflict, kTaken};
  if (sqlState.starts_with("08")) return {0, Reason::kLost, kLost};
  return {0, Reason::kOther, "The database refused this."};
}

/// What the books themselves say when one of their triggers refuses; empty for any other failure. The name of
/// the refusal comes before its words.
std::string WordsOfTrigger(const ISC_STATUS* vector) {
  if (!Names(vector, isc_arg_gds, isc_except)) return {};
  int texts = 0;
  for (; *vector != isc_arg_end; vector += *vector == isc_arg_cstring ? 3 : 2) {
    if (*vector != isc_arg_string || ++texts < 2) continue;
    return reinterpret_cast<const char*>(vector[1]);  // NOLINT(performance-no-int-to-ptr): so it comes
  }
  return {};
}

}  // namespace

FirebirdStatus::FirebirdStatus(const std::string& statement)
    : BaseStatusWrapper(ThreadStatus()), statement_(statement) {}

void FirebirdStatus::checkException(FirebirdStatus* status) {
  if (!status->isDirty() || !status->hasData()) return;
  std::array<char, 2048> text{};
  FirebirdEngine::Master().getUtilInterface()->formatStatus(text.data(), text.size(), status->status);
  std::array<char, 6> state{};
  fb_sqlstate(state.data(), status->getErrors());
  const Meaning meaning = MeaningOf(status->getErrors(), state.data());
  const std::string own = WordsOfTrigger(status->getErrors());
  throw DbError(own.empty() ? meaning.Words : own, state.data(), status->statement_, text.data(),
                meaning.Why);
}

Firebird::CheckStatusWrapper SilentStatus() { return {ThreadStatus()}; }

}  // namespace quillon
