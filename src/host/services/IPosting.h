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

  /// Posts one line of a voucher, `entries` being an open set on the FAData of the year. The first line of a
  /// voucher fills `voucher`, and the next ones read it. The voucher is stored, whole, when its lines come to
  /// zero. Throws HostError and DbError.
  virtual void PostBalanceEntry(CDataSet& entries, std::string& voucher, const std::string& book,
                                const std::string& type, int line, Date date, std::int64_t account,
                                const std::string& narration, Amount amount, bool first, bool second) = 0;
};

}  // namespace quillon
