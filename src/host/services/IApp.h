#pragma once

#include <cstdint>
#include <exception>
#include <memory>
#include <string>
#include <vector>

#include "host/forms/CAlertLog.h"
#include "host/forms/Form.h"
#include "host/services/CPartyInfo.h"
#include "host/services/HostApp.h"
#include "host/services/IModule.h"
#include "host/services/IPosting.h"

namespace quillon {

/// Application services.
class IApp : public IPosting {
 public:
  virtual HostApp& MainWindow() = 0;

  /// Whether the user may do the action ("N" open a screen, "P" print) on the right. When denied the host has
  /// shown the message; the result is the denied flag too.
  virtual bool CheckRight(const std::string& rightKey, const std::string& action, bool& denied) = 0;

  /// Whether a field's text is a date that the books take. An empty text passes; a bad one gets its message
  /// here.
  virtual bool ValidDate(const Variant& text, bool& valid) = 0;

  /// The host's hot keys; a code set to 0 was used.
  virtual void FormKeyDown(int& keyCode, int& shift, Form& form) = 0;

  /// Empty when the key was never written.
  virtual std::string GetUserSetting(const std::string& key) = 0;
  virtual void PutUserSetting(const std::string& key, const std::string& value) = 0;
  virtual std::string GetFirmSetting(const std::string& key) = 0;
  virtual void PutFirmSetting(const std::string& key, const std::string& value) = 0;

  /// Shows a form inside the main window.
  virtual void ShowForm(const FormPtr& form) = 0;

  /// Enters the form in the list of open windows and sets its QuillonForm.
  virtual void RegisterForm(Form& form, const std::string& title, const std::string& iconKey) = 0;
  virtual void UnregisterForm(Form& form) = 0;

  /// A long job begins, with the text that tells what it is. It does not count: one EndBusy ends it.
  virtual void BeginBusy(const std::string& text = "") = 0;
  virtual void EndBusy() = 0;

  /// A form of the host; nothing for a key that it does not offer.
  virtual FormPtr GetForm(const std::string& key) = 0;

  /// The key of a picture for a button; empty when there is none.
  virtual std::string GetPicture(const std::string& key) = 0;

  /// Tells an error that a routine caught.
  virtual void ReportError(const std::exception& error, Form* form, const std::string& routine) = 0;

  /// Opens a voucher in the host's voucher screen.
  virtual void OpenVoucher(Form& form, std::int64_t voucherId, int startYear, std::int64_t accountCode) = 0;

  /// The voucher's other side for a line of that signed amount: the account's code and name, empty when there
  /// is none.
  virtual void VoucherCrossRef(CDbLink& db, std::int64_t voucherId, Amount amount, std::int64_t& code,
                               std::string& text) = 0;

  /// Tells that VoucherCrossRef will be asked for the lines of FAData, named a, that meet the condition: as
  /// long as the answer is held it then knows them from one statement. A host that cannot do so answers
  /// nothing.
  [[nodiscard]] virtual std::shared_ptr<void> ExpectCrossRefs(CDbLink& /*db*/,
                                                              const std::string& /*condition*/) {
    return nullptr;
  }

  /// The host's main accounts module.
  virtual IModule& MainModule() = 0;
  virtual void InitForm(Form& form) = 0;

  /// A party's address lines, name first.
  virtual std::vector<std::string> GetPartyLines(std::int64_t code) = 0;
  virtual std::vector<std::string> GetPartyAddress(CPartyInfo& info) = 0;
  virtual std::vector<std::string> GetPartyAddress(CDataSet& party) = 0;

  /// Asks for one line of text, starting from `text`; false when cancelled.
  virtual bool InputBox(std::string& text, const std::string& prompt) = 0;

  /// A new alert window.
  virtual std::shared_ptr<CAlertLog> NewAlertLog() = 0;

  /// What an account strip shows, and its two ways on.
  virtual std::string AccountDetails(std::int64_t code) = 0;
  virtual void OpenMaster(Form& form, std::int64_t code) = 0;
  virtual void ShowAccountDetails(Form& form, std::int64_t code) = 0;
};

extern IApp* gApp;

}  // namespace quillon
