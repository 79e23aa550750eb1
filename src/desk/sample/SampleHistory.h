#pragma once

#include "desk/sample/SampleYear.h"

namespace quillon {

/// A year before the others, of few vouchers: what parties did once, and what an account was called then. It
/// ends with what the next year began with.
class SampleHistory {
 public:
  SampleHistory(FirebirdLink& year, const SampleMasters& masters, std::uint64_t seed, Date start, Date end);

  void Write(const SampleCarry& next);

 private:
  void WriteMonth(Date day);
  void Post(Date day, const std::string& book, const std::string& type, const std::string& narration,
            int debit, int credit, Amount value);
  void WriteOpenings(const SampleCarry& next);

  FirebirdLink& year_;
  const SampleMasters& masters_;
  SampleRandom random_;
  Date start_;
  Date end_;
  SampleBooks books_;
};

}  // namespace quillon
