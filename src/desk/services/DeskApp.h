#pragma once

#include <string>
#include <vector>

#include "desk/services/CrossReference.h"
#include "desk/services/DeskSession.h"
#include "desk/services/IDeskScreens.h"
#include "desk/services/Settings.h"
#include "host/services/IApp.h"

namespace quillon {

/// An open window in the host's list.
struct OpenWindow {
  Form* Window;
  std::string Title;
  std::string IconKey;
};

/// gApp: the application services over an open session.
class DeskApp : public IApp {
 public:
  DeskApp(DeskSession& session, IDeskScreens& screens);
  ~DeskApp() override;

  HostApp& MainWindow() override { return window_; }
  bool CheckRight(const std::string& rightKey, const std::string& action, bool& denied) override;
  bool ValidDate(const Variant& text, bool& valid) override;
  void FormKeyDown(int& keyCode, int& shift, Form& form) override;
  std::string GetUserSetting(const std::string& key) override { return settings_.OfUser(key); }
  void PutUserSetting(const std::string& key, const std::string& value) override {
    settings_.PutOfUser(key, value);
  }
  std::string GetFirmSetting(const std::string& key) override { return settings_.OfFirm(key); }
  void PutFirmSetting(const std::string& key, const std::string& value) override {
    settings_.PutOfFirm(key, value);
  }
  void ShowForm(const FormPtr& form) override;
  void RegisterForm(Form& form, const std::string& title, const std::string& iconKey) override;
  void UnregisterForm(Form& form) override;
  void BeginBusy(const std::string& text) override;
  void EndBusy() override;
  FormPtr GetForm(const std::string& key) override { return screens_.NewForm(key); }
  std::string GetPicture(const std::string& key) override { return key; }
  void ReportError(const std::exception& error, Form* form, const std::string& routine) override;
  void OpenVoucher(Form& form, std::int64_t voucherId, int startYear, std::int64_t accountCode) override;
  void VoucherCrossRef(CDbLink& db, std::int64_t voucherId, Amount amount, std::int64_t& code,
                       std::string& text) override;
  std::shared_ptr<void> ExpectCrossRefs(CDbLink& db, const std::string& condition) override;
  IModule& MainModule() override { return mainModule_; }
  void InitForm(Form& form) override;
  std::vector<std::string> GetPartyLines(std::int64_t code) override;
  std::vector<std::string> GetPartyAddress(CPartyInfo& info) override;
  std::vector<std::string> GetPartyAddress(CDataSet& party) override;
  bool InputBox(std::string& text, const std::string& prompt) override;
  std::shared_ptr<CAlertLog> NewAlertLog() override { return screens_.NewAlertLog(); }
  std::string AccountDetails(std::int64_t code) override;
  void OpenMaster(Form& form, std::int64_t code) override;
  void ShowAccountDetails(Form& form, std::int64_t code) override;

  void PostBalanceEntry(CDataSet& entries, std::string& voucher, const std::string& book,
                        const std::string& type, int line, Date date, std::int64_t account,
                        const std::string& narration, Amount amount, bool first, bool second) override;

  const std::vector<OpenWindow>& Windows() const { return windows_; }

  /// The account of a screen where another one of its kind is open; else empty.
  std::string AccountBeside(Form& form) const;

 private:
  class Window : public HostApp {
   public:
    Window(DeskSession& session, IDeskScreens& screens) : session_(session), screens_(screens) {}
    CDbLink& CommonDb() override { return session_.CommonDb(); }
    CDataSet& FirmRecord() override;
    FormPtr MainForm() override { return screens_.MainForm(); }
    std::string DataFolder() override;

   private:
    DeskSession& session_;
    IDeskScreens& screens_;
    CDataSet firm_;
  };

  /// The host's main accounts module: its forms are the desk's own screens.
  class AccountsModule : public IModule {
   public:
    explicit AccountsModule(IDeskScreens& screens) : screens_(screens) {}
    void Init(HostApp&) override {}
    void Terminate() override {}
    std::string ID() const override { return "LedgerworksModule"; }
    std::string Description() const override { return "Accounts"; }
    FormPtr GetForm(const std::string& name) override { return screens_.NewForm(name); }
    std::int16_t RunProc(const std::string&, const std::string&) override { return 0; }
    IModule& Obj() override { return *this; }

   private:
    IDeskScreens& screens_;
  };

  /// The host's stores module, of which the other modules ask one form.
  class StoresModule : public AccountsModule {
   public:
    using AccountsModule::AccountsModule;
    std::string ID() const override { return "StoreworksModule"; }
    std::string Description() const override { return "Stores"; }
  };

  void NextWindow(Form& form, bool backwards);

  DeskSession& session_;
  IDeskScreens& screens_;
  Settings settings_;
  Window window_;
  AccountsModule mainModule_;
  StoresModule stores_;
  std::vector<OpenWindow> windows_;
  std::weak_ptr<ExpectedSides> expected_;
};

}  // namespace quillon
