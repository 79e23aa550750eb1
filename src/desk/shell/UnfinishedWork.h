#pragma once

#include <set>
#include <string>
#include <vector>

#include "desk/services/DeskSession.h"
#include "host/forms/Runtime.h"

namespace quillon {

/// Lets no transaction stand that an error left open: as soon as the event with the error has ended the user
/// is asked, for each database, whether to keep what the step had changed. What a screen undoes itself is not
/// asked about.
class UnfinishedWork : public IEventWatch {
 public:
  explicit UnfinishedWork(DeskSession& session);
  ~UnfinishedWork() override;

  void EventBegins() override;
  void EventEnds(const std::string& failure) override;

  /// Closing the desk undoes what is open.
  void UndoAll();

 private:
  std::vector<FirmLink> Open() const;
  void Ask(const FirmLink& link, const std::string& failure);

  DeskSession& session_;
  std::vector<std::set<CDbLink*>> before_;  // what was open when each event at hand began
};

}  // namespace quillon
