#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "desk/services/DeskYear.h"
#include "desk/services/Users.h"
#include "host/services/ISession.h"

namespace quillon {

/// The area of the main window that a full screen occupies, in twips.
struct ScreenArea {
  long left = 0;
  long top = 0;
  long width = 0;
  long height = 0;
};

/// gSession: an open firm, a year of it and a user.
class DeskSession : public ISession {
 public:
  /// Opens the firm, the year (0 takes the latest) and the session of the user (empty takes the first of the
  /// highest level). Throws HostError in plain words when any of them cannot be had.
  DeskSession(const std::string& folder, const std::string& user, int startYear, SqlObserver* observer,
              const std::string& takeOver = "");
  ~DeskSession() override;

  /// Makes this session gSession. Until then another one may stay open.
  void Begin() { gSession = this; }

  long FormLeft() const override { return area_.left; }
  long FormTop() const override { return area_.top; }
  long FormWidth() const override { return area_.width; }
  long FormHeight() const override { return area_.height; }
  CDbLink& MainDb() override { return year_->Db(); }
  CDbLink& CommonDb() override { return *firm_->Common(); }
  CDbLink& FormsDb() override { return year_->Db(); }
  std::shared_ptr<FinYear> CurrentYear() override { return year_; }
  std::shared_ptr<FinYear> NewYear() override { return std::make_shared<DeskYear>(*firm_); }
  ModuleList& Modules() override { return modules_; }
  int UserLevel() const override { return user_.Level; }
  CFirm& Firm() override { return parameters_; }
  std::string FirmName() const override { return firm_->Name(); }

  /// The open session, as the desk's own parts see it; there must be one.
  static DeskSession& Current() { return static_cast<DeskSession&>(*gSession); }

  /// Whether bulk work begins with copies of the years. A person at a window has them; a script asks for
  /// them.
  bool CopiesBulkWork = false;

  /// Carries a screen out, for an account, in a firm of trial, in a process of its own, and returns when it
  /// has ended. Without it there are no trials. Throws HostError.
  std::function<void(const std::string& folder, const std::string& form, std::int64_t account)> RunTrial;

  /// Whether the user is asked if he wants one.
  bool AsksAboutTrial = true;

  /// Opens a desk of its own on a copied firm, which goes with it. Without it copies are not looked at.
  /// Throws HostError.
  std::function<void(const std::string& folder)> ShowCopy;

  /// The firm is to be taken back to before a run of the journal, as soon as the event at hand has ended.
  std::function<void(int run)> OnGoBack;

  void SetArea(const ScreenArea& area) { area_ = area; }
  void AddModule(const std::string& key, IModule& module) { modules_.byKey[key] = &module; }
  const User& CurrentUser() const { return user_; }

  /// The user as a session is opened for: empty for the supervisor of a firm that keeps no users.
  std::string UserToOpenWith();
  quillon::Firm& Books() { return *firm_; }

 private:
  struct Parameters : CFirm {
    explicit Parameters(CDbLink& link) : common(link) {}
    std::string Parameter(int number) override;
    CDbLink& common;
  };
  struct Loaded : ModuleList {
    IModule* Item(const std::string& key) override;
    std::map<std::string, IModule*> byKey;
  };

  std::unique_ptr<quillon::Firm> firm_;
  std::shared_ptr<DeskYear> year_;
  User user_;
  Parameters parameters_;
  Loaded modules_;
  ScreenArea area_;
};

}  // namespace quillon
