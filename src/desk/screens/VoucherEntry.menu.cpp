#include "desk/screens/DeskMenuLine.h"

namespace quillon {

DeskMenuLine VoucherEntryMenu() {
  return {.Menu = "&Books",
          .Place = 5,
          .Key = "VoucherEntry",
          .Caption = "&Voucher Entry",
          .Shortcut = "Ctrl+E",
          .RightKey = "vch.entry",
          .FormKey = "similarvoucher",
          .DeskForm = "VoucherEntry"};
}

}  // namespace quillon
