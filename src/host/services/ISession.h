#pragma once

#include <map>
#include <memory>
#include <string>

#include "host/services/FinYear.h"

namespace quillon {

class IModule;

/// The firm's numbered parameters.
class CFirm {
 public:
  static constexpr int kInterestYear = 1029;       ///< "Jan-Dec": the interest year is the calendar year
  static constexpr int kAmountDecimals = 1025;     ///< "4": interest with four decimals
  static constexpr int kSerialColumn = 962;        ///< "Yes": statements show the serial number
  static constexpr int kForbidSimilarBills = 586;  ///< "Yes": a voucher with a similar bill is not saved

  CFirm() = default;
  CFirm(const CFirm&) = delete;
  CFirm& operator=(const CFirm&) = delete;
  virtual ~CFirm() = default;

  /// Empty when the firm never set it.
  virtual std::string Parameter(int number) = 0;
};

/// The modules loaded in the host.
class ModuleList {
 public:
  ModuleList() = default;
  ModuleList(const ModuleList&) = delete;
  ModuleList& operator=(const ModuleList&) = delete;
  virtual ~ModuleList() = default;

  /// "LedgerworksModule", "StoreworksModule" or "DutyworksModule"; nothing when it is not loaded.
  virtual IModule* Item(const std::string& key) = 0;
};

/// The open session: firm, year, user and their databases.
class ISession {
 public:
  ISession() = default;
  ISession(const ISession&) = delete;
  ISession& operator=(const ISession&) = delete;
  virtual ~ISession() = default;

  /// The area of the main window that a full screen occupies, in twips.
  virtual long FormLeft() const = 0;
  virtual long FormTop() const = 0;
  virtual long FormWidth() const = 0;
  virtual long FormHeight() const = 0;

  virtual CDbLink& MainDb() = 0;
  virtual CDbLink& CommonDb() = 0;

  /// Where the data-form definitions lie: the link of the open year, so that a transaction holds for both.
  virtual CDbLink& FormsDb() = 0;

  virtual std::shared_ptr<FinYear> CurrentYear() = 0;
  FinYear& Year() { return *CurrentYear(); }

  /// A year object that is bound to no year yet.
  virtual std::shared_ptr<FinYear> NewYear() = 0;

  virtual ModuleList& Modules() = 0;
  virtual int UserLevel() const = 0;
  virtual CFirm& Firm() = 0;
  virtual std::string FirmName() const = 0;
};

extern ISession* gSession;

}  // namespace quillon
