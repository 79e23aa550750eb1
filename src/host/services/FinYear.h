#pragma once

#include <string>

#include "host/data/CDbLink.h"
#include "host/values/Date.h"
#include "host/values/Variant.h"

namespace quillon {

/// "2024-25" for the year that starts in 2024.
std::string YearName(int startYear);

/// A financial year of the firm. A new object is bound to no year until OpenYear: reading it then throws
/// HostError. Reached late it answers StartYear, StartDate, EndDate and StartMonth.
class FinYear : public Object {
 public:
  virtual CDbLink& Db() = 0;
  virtual Date StartDate() const = 0;
  virtual Date EndDate() const = 0;

  /// The calendar year in which it starts: 2011 for 2011-12.
  virtual int StartYear() const = 0;

  /// 1 to 12.
  virtual int StartMonth() const = 0;

  /// Prepares a newly made object.
  virtual void Init(bool flag) = 0;

  /// Binds the object to the year that starts in that calendar year; `ok` is false when the year is absent,
  /// and the object then stays as it was.
  virtual void OpenYear(int startYear, bool& ok) = 0;

  Variant Get(const std::string& member) override;
};

}  // namespace quillon
