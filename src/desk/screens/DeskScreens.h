#pragma once

#include "desk/services/IDeskScreens.h"

namespace quillon {

/// Makes the desk's own screens.
class DeskScreens : public IDeskScreens {
 public:
  FormPtr NewForm(const std::string& key) override;
  FormPtr MainForm() override;
  std::shared_ptr<CAlertLog> NewAlertLog() override;
  FormPtr NewVoucherView(std::int64_t voucherId, int startYear, std::int64_t accountCode) override;
  FormPtr NewAccountView(std::int64_t accountCode) override;

 private:
  FormPtr main_;
};

}  // namespace quillon
