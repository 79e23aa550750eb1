#pragma once

#include <span>
#include <string>

namespace quillon {

/// A kind of data form: what voucher it makes.
struct DataFormType {
  const char* Name;
  const char* FormCode;  ///< the stem of the form names; a digit from 1 to 9 follows
  const char* BookCode;
  const char* DrCr;  ///< the side of the amount: "D" or "C"; the columns take the other one

  bool IsCashBill() const;
  bool IsCashVoucher() const;
  const char* OtherSide() const { return *DrCr == 'D' ? "C" : "D"; }
};

/// In the order in which they are chosen from.
std::span<const DataFormType> DataFormTypes();

/// What a definition says of a column, beside the columns that the user sets.
struct DataFormColumn {
  const char* Name;
  const char* Title;
  int Position;
  int Width;  ///< characters
  bool IsAmount = false;

  /// A further field of the definition and its value; empty for none.
  const char* Field = "";
  int Value = 0;
};

/// The statement that stores such a column of a form.
std::string InsertFixedColumn(const std::string& form, const DataFormType& type,
                              const DataFormColumn& column);

}  // namespace quillon
