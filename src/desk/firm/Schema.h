#pragma once

#include "desk/firebird/FirebirdLink.h"

namespace quillon {

/// The tables of the books.
class Schema {
 public:
  /// Make all tables, views and procedures in a new database.
  static void MakeCommon(FirebirdLink& link);
  static void MakeYear(FirebirdLink& link);

  /// Answers the database's version. Throws HostError when the database is none of the program's, or of a
  /// schema beyond `newest`; `what` names it.
  static int Check(FirebirdLink& link, const std::string& what, int newest);

  /// Tells the engine how the rows of a year are spread now. Without it the engine takes each index for
  /// equally good and reads all entries of an account to find one line of a voucher.
  static void RefreshStatistics(FirebirdLink& link);

  /// Whether the engine has never been told so since the year has entries.
  static bool LacksStatistics(FirebirdLink& link);
};

}  // namespace quillon
