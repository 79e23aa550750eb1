#include "maintenance/PartyMerge.h"

#include "books/SqlText.h"
#include "host/data/CDataSet.h"
#include "host/services/IStd.h"

namespace quillon {

namespace {

struct Reference {
  const char* Table;
  const char* Column;
};

/// All that names an account by its code.
constexpr Reference kReferences[] = {
    {"FADATA", "DCD"},
    {"FADATA", "DCD2"},
    {"FADOCS", "PARTYCODE"},
    {"FADOCS", "TRANSPORTCODE"},
    {"FADOCS", "AGENTCODE"},
    {"DOCDATA", "CUSTOMERID"},
    {"DOCMAIN", "PARTYCODE"},
    {"DOCMAIN", "DEBITCODE"},
    {"DOCMAIN", "TRANSPORTCODE"},
    {"FAMASTER", "MTRANSPORTCODE"},
    {"DOCMAIN", "AGENTCODE"},
    {"FAMASTER", "MAGENTCODE"},
    {"DOCMAIN", "CONSIGNEECODE"},
    {"DOCMAIN", "CONSIGNORCODE"},
    {"PARAMOBAL", "DCD"},
    {"REFMASTER", "REFCODE"},
};

}  // namespace

std::int64_t PartyMerge::Find(const std::string& head, const std::string& station) {
  return year_
      .Lookup("FAMASTER", "MCD", "MHD=" + gStd->SqlString(head) + " AND MST=" + gStd->SqlString(station))
      .ToInteger();
}

void PartyMerge::Merge(const NamedPair& pair) {
  const std::int64_t original = Find(pair.Head, pair.Station);
  const std::int64_t duplicate = Find(pair.DuplicateHead, pair.DuplicateStation);
  if (duplicate == 0) return;
  if (original != 0) {
    Join(original, duplicate);
  } else {
    Rename(duplicate, pair);
  }
}

void PartyMerge::Rename(std::int64_t code, const NamedPair& pair) {
  const std::string number = books::SqlNumber(code);
  year_.Execute("UPDATE FAMASTER SET MHD=" + gStd->SqlString(pair.Head) +
                ",MST=" + gStd->SqlString(pair.Station) + " WHERE MCD=" + number);
  year_.Execute("UPDATE FAHEADS SET HEAD=" + gStd->SqlString(pair.Head) + ",PRESSHEAD=" +
                gStd->SqlString(gStd->PressHead(pair.Head)) + " WHERE CODE=" + number + " AND SUBCODE=0");
}

void PartyMerge::Join(std::int64_t original, std::int64_t duplicate) {
  const std::string kept = books::SqlNumber(original);
  const std::string gone = books::SqlNumber(duplicate);
  for (const auto& [table, column] : kReferences) {
    const std::string name = column;
    year_.Execute("UPDATE " + std::string(table) + " SET " + name + "=" + kept + " WHERE " + name + "=" +
                  gone);
  }
  year_.Execute("EXECUTE PROCEDURE DELETE_MASTER(" + gone + ")");
  JoinOpenings(kept);
}

void PartyMerge::JoinOpenings(const std::string& original) {
  const std::string openings = " FROM FADATA WHERE DTRNTYPE='0B' AND DCD=" + original;
  CDataSet sum;
  sum.Open("SELECT SUM(DAMT)" + openings, year_, 3, 1);
  const Amount total = sum.Eof() ? Amount() : sum.Field(std::size_t{0}).ToAmount();
  sum.Close();
  CDataSet row;
  row.Open("SELECT FIRST 1 *" + openings, year_, 3, CDataSet::kLockOptimistic);
  if (row.Eof()) return;
  row.SetField("dAmt", total);
  row.Update();
  year_.Execute("DELETE" + openings + " AND VOUCHERID<>" +
                books::SqlNumber(row.Field("VoucherID").ToInteger()));
}

}  // namespace quillon
