#pragma once

#include <string>

#include "desk/firebird/FirebirdLink.h"
#include "desk/firm/FirmFile.h"

namespace quillon {

/// Where the databases of the years lie. firm.json names their first places; a firm that was taken back to a
/// copy has later ones in its common database, beside the first.
class YearPlaces {
 public:
  /// Puts the later places into what firm.json says.
  static void ReadInto(FirmFile& file, FirebirdLink& common);

  /// The database of a bare file name beside a year's.
  static FirebirdAddress Beside(const FirebirdAddress& year, const std::string& name);

  /// The bare file name of a database.
  static std::string NameOf(const FirebirdAddress& year);

  /// Sets a year's place as part of a transaction. Throws DbError.
  static void Set(CDbLink& common, int startYear, const std::string& name);
};

}  // namespace quillon
