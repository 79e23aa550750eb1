#pragma once

#include <memory>

#include "host/data/CDataSet.h"

namespace quillon {

/// The party whose address is to be built: by its code, or by the row at hand of a set on the masters.
struct CPartyInfo {
  /// The party's row; gApp->GetPartyAddress opens one when there is none.
  std::shared_ptr<CDataSet> DataSet;

  /// 0 takes the row of DataSet as it stands.
  std::int64_t Code = 0;
};

}  // namespace quillon
