#pragma once

#include <cstdlib>
#include <exception>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

#include "host/values/Errors.h"

namespace quillon {

/// Makes damaged inputs out of good ones: always the same sequence, so that the n-th input of a run can be
/// had again.
class Mutator {
 public:
  /// `samples` are good inputs, `tokens` what means something inside them.
  Mutator(std::vector<std::string> samples, std::vector<std::string> tokens)
      : samples_(std::move(samples)), tokens_(std::move(tokens)) {}

  std::string Next() {
    std::string text = samples_[Below(samples_.size())];
    for (std::size_t steps = 1 + Below(6); steps > 0; --steps) Mutate(text);
    return text;
  }

 private:
  std::size_t Below(std::size_t limit) {
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_);
  }

  void Mutate(std::string& text) {
    const std::size_t at = Below(text.size() + 1);
    const std::size_t length = Below(8);
    switch (Below(6)) {
      case 0:
        text.insert(at, tokens_[Below(tokens_.size())]);
        break;
      case 1:
        text.insert(at, 1, static_cast<char>(Below(256)));
        break;
      case 2:
        text.erase(at, length);
        break;
      case 3:
        text.insert(at, text.substr(Below(text.size() + 1), length * length));
        break;
      case 4:
        text.resize(at);
        break;
      default:
        text += samples_[Below(samples_.size())].substr(0, at);
        break;
    }
  }

  std::vector<std::string> samples_;
  std::vector<std::string> tokens_;
  std::mt19937 random_{20240401};
};

/// Hands as many inputs to `check` as are asked for, or as QUILLON_FUZZ_INPUTS says. A HostError is a refusal
/// and fine; any other exception and any failed expectation ends the run and shows the input.
template <class Check>
void Fuzz(Mutator mutator, Check check, std::size_t inputs = 10000) {
  if (const char* wanted = std::getenv("QUILLON_FUZZ_INPUTS")) inputs = std::stoul(wanted);
  std::size_t refused = 0;
  std::size_t taken = 0;
  while (taken + refused < inputs && !testing::Test::HasFailure()) {
    const std::string input = mutator.Next();
    SCOPED_TRACE("input " + std::to_string(taken + refused) + ": " + testing::PrintToString(input));
    try {
      check(input);
      ++taken;
    } catch (const HostError&) {
      ++refused;
    } catch (const std::exception& error) {
      FAIL() << "not a HostError: " << error.what();
    }
  }
  EXPECT_GT(taken, 0U) << "no input was taken: the samples are wrong";
}

}  // namespace quillon
