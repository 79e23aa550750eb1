#include "entry/DataFormType.h"

#include <string_view>

namespace quillon {

namespace {

using namespace std::string_view_literals;

}  // namespace

bool DataFormType::IsCashBill() const { return FormCode == "CS"sv || FormCode == "CP"sv; }

bool DataFormType::IsCashVoucher() const { return FormCode == "RC"sv || FormCode == "PC"sv; }

std::span<const DataFormType> DataFormTypes() {
  static constexpr DataFormType kTypes[] = {
      {"Sale", "SL", "JS", "D"},         {"Cash Sale", "CS", "C", "D"},     {"Purchase", "PR", "JP", "C"},
      {"Cash Purchase", "CP", "C", "C"}, {"Journal (Dr.)", "JD", "J", "D"}, {"Journal (Cr.)", "JC", "J", "C"},
      {"Cash Receipts", "RC", "C", "C"}, {"Cash Payments", "PC", "C", "D"},
  };
  return kTypes;
}

std::string InsertFixedColumn(const std::string& form, const DataFormType& type,
                              const DataFormColumn& column) {
  const bool more = *column.Field != '\0';
  return std::string(
             "Insert into EntryFormDetails (FormName,ColName,ColTitle,ColNumeric,ColDrCr,ColPosition,"
             "ColWidthChar,ColDecimals,ColTotalRqr") +
         (more ? std::string(",") + column.Field : "") + ") values ('" + form + "','" + column.Name + "','" +
         column.Title + "'," + (column.IsAmount ? "-1" : "0") + ",'" + (column.IsAmount ? type.DrCr : "") +
         "'," + std::to_string(column.Position) + "," + std::to_string(column.Width) + "," +
         (column.IsAmount ? "2,-1" : "0,0") + (more ? "," + std::to_string(column.Value) : "") + ")";
}

}  // namespace quillon
