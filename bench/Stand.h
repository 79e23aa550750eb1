#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "bench/DeskWork.h"
#include "bench/RawClient.h"

namespace quillon::bench {

/// What is measured of the desk: the act, and what must be so before it and after it.
struct Case {
  const char* Title;
  std::function<void(DeskWork&)> Ready;
  std::function<void(DeskWork&)> Act;
  std::function<void(DeskWork&)> Undo;
  int Acts = 1;  ///< to be recorded and counted

  /// The least statements on the year that could fill the view, where they are not those that were sent.
  std::vector<std::string> Lean = {};
};

const std::vector<Case>& Cases();

/// What the engine counted for one act.
struct Counts {
  double PageWrites = 0;
  double Prepared = 0;
  double RowsRead = 0;
};

/// One firm with the desk on it and the raw client beside it, which repeats what the desk has sent.
class Stand {
 public:
  explicit Stand(const std::filesystem::path& firm);

  DeskWork Work;

  /// Records what the desk sends in a case and counts it, the desk's and the floor's.
  void Record(const Case& measured);

  /// Sends what one act of the recorded case has sent; each call takes the next act.
  void RunFloor(bool prepared);

  /// Sends the least statements of a case.
  void RunLean(const Case& measured);

  const Counts& DeskCounts() const { return desk_; }
  const Counts& FloorCounts() const { return floor_; }

 private:
  struct Sent {
    RawClient* To;
    std::string Sql;
  };
  class Recorder;

  struct Database {
    explicit Database(FirebirdLink& link);

    FirebirdLink& Link;
    std::string File;
    RawClient Floor;
    RawClient Monitor;
    std::string DeskId;
    std::string FloorId;
  };

  Counts Snapshot(std::string Database::*who);
  Counts Count(std::string Database::*who, std::size_t acts, const std::function<void()>& act);

  Database year_;
  Database common_;
  std::vector<std::vector<Sent>> acts_;
  std::size_t next_ = 0;
  Counts desk_;
  Counts floor_;
};

}  // namespace quillon::bench
