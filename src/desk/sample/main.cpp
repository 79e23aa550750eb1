#include <charconv>
#include <cstdio>
#include <string>
#include <string_view>

#include "desk/sample/SampleFirm.h"
#include "host/values/AskedAbout.h"
#include "host/values/Errors.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr const char* kUsage =
    "quillon-sample FOLDER [--vouchers N] [--seed S] [--years 2023,2024,2025] [--empty]\n"
    "Makes a firm with sample books in FOLDER: N vouchers in each year. Without --years these are 2023 and 2024, and\n"
    "before them 2022 with few vouchers. --empty makes the tables alone.\n";

template <class Number>
Number NumberOf(const std::string& option, std::string_view text) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) {
    throw HostError(option + " needs a number, not \"" + std::string(text) + "\"");
  }
  return number;
}

struct Command {
  std::string Folder;
  SampleOptions Options;
};

Command CommandOf(int count, char** words) {
  Command command;
  command.Options.HasYearBefore = true;
  for (int i = 1; i < count; ++i) {
    const std::string word = words[i];
    const auto value = [&]() -> std::string {
      if (++i == count) throw HostError(word + " needs a value");
      return words[i];
    };
    if (word == "--empty") {
      command.Options.IsEmpty = true;
    } else if (word == "--vouchers") {
      command.Options.Vouchers = NumberOf<int>(word, value());
    } else if (word == "--seed") {
      command.Options.Seed = NumberOf<std::uint64_t>(word, value());
    } else if (word == "--years") {
      command.Options.HasYearBefore = false;
      command.Options.Years.clear();
      for (const std::string& year : text::Split(value(), ",")) {
        command.Options.Years.push_back(NumberOf<int>(word, year));
      }
    } else if (!word.starts_with("--") && command.Folder.empty()) {
      command.Folder = word;
    } else {
      throw HostError("\"" + word + "\" is not understood");
    }
  }
  if (command.Folder.empty()) throw HostError("The folder is missing");
  return command;
}

}  // namespace

}  // namespace quillon

int main(int count, char** words) {
  if (quillon::AskedAbout(count, words, "quillon-sample", QUILLON_VERSION, quillon::kUsage)) return 0;
  quillon::Command command;
  try {
    command = quillon::CommandOf(count, words);
  } catch (const quillon::HostError& error) {
    std::fprintf(stderr, "%s\n%s", error.what(), quillon::kUsage);
    return 2;
  }
  try {
    quillon::MakeSampleFirm(command.Folder, command.Options);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
  std::printf("The firm is in %s\n", command.Folder.c_str());
  return 0;
}
