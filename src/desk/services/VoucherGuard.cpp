#include "desk/services/VoucherGuard.h"

#include <algorithm>

#include "books/BooksNames.h"
#include "books/SqlText.h"
#include "host/data/CDataSet.h"

namespace quillon {

namespace {

/// The series of documents that the accounts make themselves.
constexpr const char* kOwnSeries = "FAS";

}  // namespace

std::string VoucherGuard::WhyNotOn(Date day) const {
  if (day < year_.StartDate() || day > year_.EndDate()) {
    return day.Text() + " is outside the year " + YearName(year_.StartYear()) + ".";
  }
  const Date closed =
      year_.Db()
          .Lookup("FAData", "Max(dVchDate)", "dTrnType=" + books::SqlString(books::kClosingType))
          .ToDate();
  if (closed.IsEmpty() || day >= closed) return {};
  return "The books are closed on " + closed.Text() + "; nothing is entered or changed before that.";
}

std::string VoucherGuard::WhyNotChange(const StoredVoucher& voucher) const {
  if (voucher.Book == books::kOpeningBook) return "An opening balance is not changed here.";
  const bool isLocked = std::any_of(voucher.Lines.begin(), voucher.Lines.end(),
                                    [](const StoredLine& line) { return line.IsLocked; });
  if (isLocked) return "This voucher is locked.";
  if (std::string why = WhyNotOn(voucher.Day); !why.empty()) return why;
  return WhyNotForDocuments(voucher);
}

std::string VoucherGuard::WhyNotForDocuments(const StoredVoucher& voucher) const {
  const std::string id = books::SqlNumber(voucher.Id);
  CDataSet document;
  document.Open("Select first 1 DocumentID,DocSeries from DocMain where DocVoucherID=" + id +
                    " and (DocSeries is distinct from " + books::SqlString(kOwnSeries) +
                    " or dLocked=1) order by DocumentID",
                year_.Db());
  if (!document.Eof()) {
    return "This voucher belongs to document " + document.Field("DocumentID").ToText() + " " +
           document.Field("DocSeries").ToText() + ".";
  }
  if (!year_.Db().RowExists("Select first 1 LeafID from ChqGoingOut where VoucherID=" + id)) return {};
  return "A cheque of this voucher is on its way to a printer.";
}

}  // namespace quillon
