#include "books/StoreEntry.h"

#include "books/SqlText.h"
#include "host/data/CDataSet.h"
#include "host/values/Errors.h"

namespace quillon::books {

namespace {

/// The entry as a person calls it; as little as is known when the database does not answer either.
std::string NameOf(CDbLink& db, std::int64_t voucher) {
  try {
    CDataSet line;
    line.Open("Select first 1 dVchNo,dVchDate from FAData where VoucherID=" + SqlNumber(voucher), db);
    if (line.Eof()) return "The entry";
    return "The entry of " + line.Field("dVchDate").ToDate().Text() + ", voucher no. " +
           line.Field("dVchNo").ToText() + ",";
  } catch (const DbError&) {
    return "The entry";
  }
}

}  // namespace

std::int64_t StoreEntry(CDbLink& db, std::int64_t voucher, const std::string& statement) {
  std::int64_t rows = 0;
  try {
    db.Execute(statement, rows, CDbLink::kNoRows);
  } catch (const DbError& error) {
    const std::string entry = error.Why() == DbError::Reason::kLost ? "The entry" : NameOf(db, voucher);
    throw DbError(entry + " was not stored. " + error.what(), error.SqlState(), error.Statement(),
                  error.EngineText(), error.Why());
  }
  return rows;
}

}  // namespace quillon::books
