#pragma once

#include <memory>
#include <string>

#include "host/data/CDataSet.h"
#include "host/values/Event.h"

namespace quillon {

class Form;

/// The host's application object.
class HostApp {
 public:
  HostApp() = default;
  HostApp(const HostApp&) = delete;
  HostApp& operator=(const HostApp&) = delete;
  virtual ~HostApp() = default;

  /// The firm's common database, the same as gSession->CommonDb().
  virtual CDbLink& CommonDb() = 0;

  /// The current firm's row, open on it.
  virtual CDataSet& FirmRecord() = 0;

  /// The host's main form.
  virtual std::shared_ptr<Form> MainForm() = 0;

  /// The folder under which the cheque definition files lie.
  virtual std::string DataFolder() = 0;

  /// The user chose an item of the main menu: its key, and a flag that modules leave alone.
  Broadcast<const std::string&, bool&> MainMenuClick;
};

}  // namespace quillon
