#include "maintenance/DuplicateSearch.h"

#include "host/data/CDataSet.h"

namespace quillon {

namespace {

/// Of rows in the order of their groups, each row but the first of its group is a duplicate of that.
std::vector<AccountPair> PairsOf(CDbLink& db, const std::string& query,
                                 const std::vector<std::string>& groupedBy) {
  std::vector<AccountPair> pairs;
  std::vector<std::string> group;
  NamedAccount original;
  CDataSet rows;
  for (rows.Open(query, db); !rows.Eof(); rows.MoveNext()) {
    std::vector<std::string> ofRow;
    ofRow.reserve(groupedBy.size());
    for (const std::string& column : groupedBy) ofRow.push_back(rows.Field(column).ToText());
    NamedAccount account{rows.Field("MCD").ToInteger(), rows.Field("MHD").ToText(),
                         rows.Field("MST").ToText()};
    if (ofRow == group) {
      pairs.push_back({original, std::move(account)});
    } else {
      group = std::move(ofRow);
      original = std::move(account);
    }
  }
  return pairs;
}

}  // namespace

void DuplicateSearch::BlankNulls() {
  db_.Execute("UPDATE FAMASTER SET MST='' WHERE MST IS NULL");
  db_.Execute("UPDATE FAMASTER SET MALIAS1='' WHERE MALIAS1 IS NULL");
}

std::vector<AccountPair> DuplicateSearch::ByName() {
  return PairsOf(db_,
                 "SELECT A.MCD,A.MHD,A.MST FROM FAMASTER A INNER JOIN (SELECT MHD,MST FROM FAMASTER GROUP BY "
                 "MHD,MST HAVING COUNT(*)>1) Q ON A.MHD=Q.MHD AND A.MST=Q.MST ORDER BY A.MHD,A.MST,A.MCD",
                 {"MHD", "MST"});
}

std::vector<AccountPair> DuplicateSearch::ByAlias() {
  return PairsOf(
      db_,
      "SELECT A.MALIAS1,A.MCD,A.MHD,A.MST FROM FAMASTER A INNER JOIN (SELECT MALIAS1 FROM FAMASTER "
      "WHERE MALIAS1<>'' GROUP BY MALIAS1 HAVING COUNT(*)>1) Q ON A.MALIAS1=Q.MALIAS1 WHERE "
      "A.MALIAS1<>'' ORDER BY A.MALIAS1,A.MHD,A.MST,A.MCD",
      {"MALIAS1"});
}

}  // namespace quillon
