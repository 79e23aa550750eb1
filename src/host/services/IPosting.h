#pragma once

#include <cstdint>
#include <string>

#include "host/values/Amount.h"
#include "host/values/Date.h"

namespace quillon {

class CDataSet;

/// Posts lines of vouchers.
class IPosting {
 public:
  IPosting() = default;
  IPosting(const IPosting&) = delete;
  IPosting& operator=(const IPosting&) = delete;
  virtual ~IPosting() = default;

  /// Posts one line of a voucher, `entries` being an open set on the FAData of the year. An empty `voucher`
  /// makes a new one, with the next number of its type, and takes its id; with an id the line is added to
  /// that voucher, whose lines then name each other as their other sides. Each call is for good by itself.
  /// Throws HostError and DbError.
  virtual void PostBalanceEntry(CDataSet& entries, std::string& voucher, const std::string& book,
                                const std::string& type, int line, Date date, std::int64_t account,
                                const std::string& narration, Amount amount, bool first, bool second) = 0;
};

}  // namespace quillon
