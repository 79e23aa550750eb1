#pragma once

#include <memory>

#include "desk/firm/Firm.h"
#include "host/services/FinYear.h"

namespace quillon {

/// A financial year of the open firm.
class DeskYear : public FinYear {
 public:
  explicit DeskYear(Firm& firm) : firm_(firm) {}

  CDbLink& Db() override { return *Bound().Db; }
  Date StartDate() const override { return Bound().StartDate; }
  Date EndDate() const override { return Bound().EndDate; }
  int StartYear() const override { return Bound().StartYear; }
  int StartMonth() const override { return Bound().StartDate.Month(); }
  void Init(bool flag) override;
  void OpenYear(int startYear, bool& ok) override;

 private:
  const FirmYear& Bound() const;

  Firm& firm_;
  const FirmYear* year_ = nullptr;
};

}  // namespace quillon
