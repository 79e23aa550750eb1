#pragma once

#include <optional>
#include <string>

#include "desk/firebird/FirebirdLink.h"

namespace quillon {

/// Such a time as people read it: "01-Apr-2024 10:15".
std::string SpokenTime(const std::string& time);

/// The time now, "2024-04-01 10:15:00", as the common database keeps it.
std::string TimeNow();

/// A firm's turn for bulk work: one run, or one going back, at a time. It is a row of the common database
/// that goes with the object; what a program has left that ended in between is void.
class BulkTurn {
 public:
  struct Holder {
    std::string User;
    std::string Since;  ///< "2024-04-01 10:15:00"
    std::string Doing;  ///< "Mass Deletion of Asha Traders"
    bool AllLeave = false;

    /// "Mass Deletion of Asha Traders, by Meera since 01-Apr-2024 10:15"
    std::string Words() const { return Doing + ", by " + User + " since " + SpokenTime(Since); }
  };

  /// Throws HostError that names who has the turn and since when. `common` must outlive it. With `allLeave`
  /// the other programs are asked to leave the years, and none may open one.
  BulkTurn(FirebirdLink& common, const std::string& user, const std::string& doing, bool allLeave = false);
  BulkTurn(const BulkTurn&) = delete;
  BulkTurn& operator=(const BulkTurn&) = delete;
  ~BulkTurn();

  /// Who has the turn; nothing when it is free.
  static std::optional<Holder> Now(FirebirdLink& common);

  /// Another program that wants all others to leave the years; nothing when none does.
  static std::optional<Holder> AsksToLeave(FirebirdLink& common);

  /// Takes the row of a program away that ended in its turn, and answers whether it had asked all to leave.
  static bool Clear(FirebirdLink& common);

 private:
  FirebirdLink& common_;
};

}  // namespace quillon
