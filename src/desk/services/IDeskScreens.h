#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "host/forms/CAlertLog.h"
#include "host/forms/Form.h"

namespace quillon {

/// The host's own screens, as the services ask for them.
class IDeskScreens {
 public:
  IDeskScreens() = default;
  IDeskScreens(const IDeskScreens&) = delete;
  IDeskScreens& operator=(const IDeskScreens&) = delete;
  virtual ~IDeskScreens() = default;

  /// A new form for the key, case ignored; nothing for a key that the desk does not offer.
  virtual FormPtr NewForm(const std::string& key) = 0;
  virtual FormPtr MainForm() = 0;
  virtual std::shared_ptr<CAlertLog> NewAlertLog() = 0;
  virtual FormPtr NewVoucherView(std::int64_t voucherId, int startYear, std::int64_t accountCode) = 0;

  /// The master record of an account, and its details.
  virtual FormPtr NewAccountView(std::int64_t accountCode) = 0;
};

}  // namespace quillon
