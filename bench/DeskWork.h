#pragma once

#include <filesystem>
#include <memory>
#include <ostream>

#include "desk/driver/DriverRuntime.h"
#include "desk/shell/Desk.h"

namespace quillon::bench {

/// The desk on a firm, and the acts of a person whose time is taken. The acts that make something ready find
/// the desk in any state.
class DeskWork {
 public:
  /// Dates are stored on this many entries, again and again.
  static constexpr int kRows = 256;

  explicit DeskWork(const std::filesystem::path& firm);

  FirebirdLink& Year();
  FirebirdLink& Common();

  void CloseForms();
  void OpenStatement();

  void ReadyStatement();
  void OpenWorkbench();
  void CloseWorkbench();

  /// The amounts of the statement's year as a graph by month.
  void OpenGraph();
  void CloseGraph();

  void ReadyEntries();

  /// Enters the cell of the next entry, types a date and leaves.
  void StoreDate();

  /// The entries of the days of the first thousand, without their dates, and filled by mass marking.
  void ReadyMassMarking();
  void MarkThousand() { MassMark(false); }

  /// Finds an entry by its cheque number on a new page of the markings; the bank has cleared it before.
  void ReadyMarkings();
  void LookUpCheque();

  /// Shows the reconciliation statement as on the end of the year, or the pass book of the year, its
  /// references shown or hidden.
  void ReadyReconciliation(bool references) { ReadyView(View::Reconciliation, references); }
  void ReadyPassBook(bool references) { ReadyView(View::PassBook, references); }

  /// Builds that view again, with references where there were none and the other way round.
  void PressReferences();

  /// From the pass book through the dialog, which is accepted as it comes up, to the table.
  void ShowInterest();

 private:
  /// The driver's runtime where whatever was not expected is an error, and forms that are gone are let go.
  class Runtime : public DriverRuntime {
   public:
    using DriverRuntime::DriverRuntime;
    int AskMessage(const MessageRequest& request) override;
    bool Confirms = false;  ///< a question is answered with Yes
    void TellError(const std::string& routine, Form* form, const std::exception& error) override;

   protected:
    void FormHappened(Happening, Form&) override {}
  };

  enum class View { Entries, Reconciliation, PassBook, Interest };

  void Press(Form& form, const char* button);
  void ReadyView(View view, bool references);
  void MassMark(bool unmark);

  std::ostream nowhere_{nullptr};
  EventLog log_{nowhere_};
  Runtime runtime_;
  Desk desk_;
  FormPtr statement_;
  FormPtr workbench_;
  FormPtr graph_;
  FormPtr markings_;
  View view_ = View::Entries;
  bool references_ = true;
  int stored_ = 0;
  int lookedUp_ = 0;
};

}  // namespace quillon::bench
