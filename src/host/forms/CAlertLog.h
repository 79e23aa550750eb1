#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/values/Event.h"

namespace quillon {

class Form;
class GridModel;

/// The host's alert window: a list of lines that the user reads, and closes when he is done.
class CAlertLog {
 public:
  CAlertLog() = default;
  CAlertLog(const CAlertLog&) = delete;
  CAlertLog& operator=(const CAlertLog&) = delete;
  virtual ~CAlertLog() = default;

  virtual void Heading(const std::string& text) = 0;
  virtual void Title(const std::string& text) = 0;

  /// Each "title,width"; the width in characters, 0 hides the column.
  virtual void SetColumns(const std::vector<std::string>& columns) = 0;
  virtual void AddRow(const std::vector<std::string>& cells) = 0;
  virtual GridModel& Grid() = 0;
  virtual std::shared_ptr<quillon::Form> Form() = 0;
  virtual void Show(const std::shared_ptr<quillon::Form>& owner) = 0;

  Event<int> GridRowDblClick;
};

}  // namespace quillon
