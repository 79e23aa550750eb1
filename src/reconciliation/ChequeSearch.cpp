#include "reconciliation/ChequeSearch.h"

#include "books/SqlText.h"
#include "host/services/IStd.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

std::size_t ByteLength(const std::string& text) { return 2 * text::Length(text); }

}  // namespace

bool IsSearched(const std::string& dateText, const std::string& chequeNo) {
  return (ByteLength(dateText) & ByteLength(chequeNo)) != 0;
}

std::string ChequeQuery(std::int64_t account, const std::string& chequeNo, Date clear, std::int64_t days) {
  std::string query =
      "SELECT A.VOUCHERID,A.DVCHSUBNO,A.DVCHDATE,N.NARRATION,A.DAMT,A.DBANKDATE FROM FADATA A "
      "INNER JOIN FANAR N ON A.NARRATIONID=N.NARRATIONID WHERE A.DCD=" +
      books::SqlNumber(account) + " AND N.NARRATION LIKE '%" + chequeNo + "%'";
  if (!clear.IsEmpty()) query += " AND A.DVCHDATE BETWEEN " + gStd->SqlDate(clear.AddDays(-days), clear);
  return query + " ORDER BY A.DBANKDATE";
}

}  // namespace quillon
