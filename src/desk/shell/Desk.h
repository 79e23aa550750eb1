#pragma once

#include <functional>
#include <memory>
#include <string>

#include "desk/print/DeskReports.h"
#include "desk/screens/DeskMenu.h"
#include "desk/screens/DeskScreens.h"
#include "desk/services/DeskApp.h"
#include "desk/services/DeskSession.h"
#include "desk/services/DeskStd.h"
#include "desk/shell/UnfinishedWork.h"
#include "host/services/IModule.h"

namespace quillon {

/// The desk: the services wired together over an open firm, with the module loaded. One at a time in a
/// process; the runtime must live longer.
class Desk {
 public:
  struct Options {
    std::string ModulePath;  ///< empty: beside the program
    std::string OutputFolder = ".";
    ScreenArea Area;
    SqlObserver* Sql = nullptr;
    ReportObserver* Reports = nullptr;
    bool CopiesBulkWork = false;  ///< before each screen that changes many entries
  };

  /// Throws HostError when the module cannot be loaded.
  explicit Desk(Options options);
  ~Desk();

  /// Closes an open firm when the new one is ready. Throws HostError in plain words; the open one then stays.
  /// `takeOver` names the machine whose lock on the firm is void by the user's word.
  void OpenFirm(const std::string& folder, const std::string& user = "", int startYear = 0,
                const std::string& takeOver = "");

  /// Closes the firm, takes it back to before a run of bulk work, and opens it again. Throws HostError in
  /// plain words; it is then open as it was.
  void GoBack(int run);

  /// Another program that wants this one to leave the firm, in words; empty when none does.
  std::string WhoAsksToLeave();

  /// Takes the firm back when the event at hand has ended: GoBack must not be called from within one.
  std::function<void(int run)> OnGoBack;

  /// See DeskSession.
  std::function<void(const std::string& folder, const std::string& form, std::int64_t account)> RunTrial;
  std::function<void(const std::string& folder)> ShowCopy;

  /// Ends the module's forms and the desk's own, then the session.
  void CloseFirm();
  bool HasFirm() const { return session_ != nullptr; }

  IModule& Module() { return *module_; }
  DeskSession& Session() { return *session_; }
  DeskApp& App() { return *app_; }
  DeskMenu& Menu() { return *menu_; }

 private:
  int PrinterMode() const;

  Options options_;
  DeskStd std_;
  DeskReports reports_;
  std::unique_ptr<IModule> module_;
  std::unique_ptr<DeskScreens> screens_;
  std::unique_ptr<DeskSession> session_;
  std::unique_ptr<DeskApp> app_;
  std::unique_ptr<DeskMenu> menu_;
  std::unique_ptr<UnfinishedWork> unfinished_;
};

}  // namespace quillon
